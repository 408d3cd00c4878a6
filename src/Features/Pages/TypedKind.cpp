#include "Features/Pages/TypedKind.h"

#include <array>

namespace
{
struct Signs {
    QStringView text;
    BlockType type;
    bool checked = false;
};

constexpr std::array signs{
    Signs{u"# ", BlockType::heading1},
    Signs{u"## ", BlockType::heading2},
    Signs{u"### ", BlockType::heading3},
    Signs{u"- ", BlockType::bulleted},
    Signs{u"* ", BlockType::bulleted},
    Signs{u"1. ", BlockType::numbered},
    Signs{u"[] ", BlockType::checklist},
    Signs{u"[ ] ", BlockType::checklist},
    Signs{u"[x] ", BlockType::checklist, true},
    Signs{u"> ", BlockType::quote},
    Signs{u"``` ", BlockType::code},
    Signs{u"---", BlockType::divider},
};
} // namespace

std::optional<Block> TypedKind::of(const Block &block, const PageBlocks::TextEdit &edit, const QString &text)
{
    const bool isTyped = edit.inserted.size() == 1 && edit.begin == edit.end && edit.begin == text.size() - 1;
    if (!isTyped || block.type == BlockType::code)
        return std::nullopt;
    const auto found = std::ranges::find(signs, QStringView(text), &Signs::text);
    if (found == signs.end() || found->type == block.type)
        return std::nullopt;
    Block next = block;
    PageBlocks::changeType(next, found->type);
    next.checked = found->checked;
    next.text.clear();
    return next;
}
