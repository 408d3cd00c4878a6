#include "Support/Spelling/Hunspell.h"

#include "Foundation/LazyLibrary.h"

namespace
{
std::expected<Hunspell, QString> load()
{
    LazyLibrary library(QStringLiteral("hunspell-1.7"), 0);
    Hunspell hunspell = {};
    library.resolve(hunspell.create, "Hunspell_create");
    library.resolve(hunspell.destroy, "Hunspell_destroy");
    library.resolve(hunspell.spell, "Hunspell_spell");
    library.resolve(hunspell.suggest, "Hunspell_suggest");
    library.resolve(hunspell.freeList, "Hunspell_free_list");
    library.resolve(hunspell.encoding, "Hunspell_get_dic_encoding");
    if (const auto state = library.state(); !state)
        return std::unexpected(state.error());
    return hunspell;
}
} // namespace

const std::expected<Hunspell, QString> &Hunspell::library()
{
    static const std::expected<Hunspell, QString> loaded = load();
    return loaded;
}
