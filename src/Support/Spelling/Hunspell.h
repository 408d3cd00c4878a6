#pragma once

#include <QString>

#include <expected>
#include <hunspell/hunspell.h>

/// The functions of Hunspell that this program calls.
struct Hunspell {
    decltype(&::Hunspell_create) create;
    decltype(&::Hunspell_destroy) destroy;
    decltype(&::Hunspell_spell) spell;
    decltype(&::Hunspell_suggest) suggest;
    decltype(&::Hunspell_free_list) freeList;
    decltype(&::Hunspell_get_dic_encoding) encoding;

    /// The loaded library, or why it can't be loaded. May be called from any thread.
    static const std::expected<Hunspell, QString> &library();
};
