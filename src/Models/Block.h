#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"

#include <QUuid>

enum class BlockType {
    paragraph,
    heading1,
    heading2,
    heading3,
    bulleted,
    numbered,
    checklist,
    quote,
    callout,
    code,
    divider
};

template <>
struct EnumTable<BlockType> {
    static constexpr auto cases = std::to_array<EnumCase<BlockType>>({
        {BlockType::paragraph, "paragraph", QT_TRANSLATE_NOOP("EnumLabel", "Text"), "text.alignleft"},
        {BlockType::heading1, "heading1", QT_TRANSLATE_NOOP("EnumLabel", "Heading 1"),
         "textformat.size.larger"},
        {BlockType::heading2, "heading2", QT_TRANSLATE_NOOP("EnumLabel", "Heading 2"), "textformat.size"},
        {BlockType::heading3, "heading3", QT_TRANSLATE_NOOP("EnumLabel", "Heading 3"),
         "textformat.size.smaller"},
        {BlockType::bulleted, "bulleted", QT_TRANSLATE_NOOP("EnumLabel", "Bulleted list"), "list.bullet"},
        {BlockType::numbered, "numbered", QT_TRANSLATE_NOOP("EnumLabel", "Numbered list"), "list.number"},
        {BlockType::checklist, "checklist", QT_TRANSLATE_NOOP("EnumLabel", "To-do"), "checklist"},
        {BlockType::quote, "quote", QT_TRANSLATE_NOOP("EnumLabel", "Quote"), "text.quote"},
        {BlockType::callout, "callout", QT_TRANSLATE_NOOP("EnumLabel", "Callout"), "megaphone"},
        {BlockType::code, "code", QT_TRANSLATE_NOOP("EnumLabel", "Code"),
         "chevron.left.forwardslash.chevron.right"},
        {BlockType::divider, "divider", QT_TRANSLATE_NOOP("EnumLabel", "Divider"), "minus"},
    });
};

enum class CalloutTone { info, tip, warning, danger };

template <>
struct EnumTable<CalloutTone> {
    static constexpr auto cases = std::to_array<EnumCase<CalloutTone>>({
        {CalloutTone::info, "info", QT_TRANSLATE_NOOP("EnumLabel", "info"), "info.circle.fill"},
        {CalloutTone::tip, "tip", QT_TRANSLATE_NOOP("EnumLabel", "tip"), "lightbulb.fill"},
        {CalloutTone::warning, "warning", QT_TRANSLATE_NOOP("EnumLabel", "warning"),
         "exclamationmark.triangle.fill"},
        {CalloutTone::danger, "danger", QT_TRANSLATE_NOOP("EnumLabel", "danger"), "xmark.octagon.fill"},
    });
};

/// One block of a page.
struct Block {
    QUuid id;
    BlockType type = BlockType::paragraph;
    /// The text of the block, also the source of a `code` block.
    QString text;
    /// State of a `checklist` block.
    bool checked = false;
    /// Colouring of a `callout` block.
    CalloutTone tone = CalloutTone::info;
    /// Language of a `code` block, a raw text of `CodeLanguage`.
    QString language = QStringLiteral("swift");

    bool operator==(const Block &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Block::id},     Field{"type", &Block::type},
                          Field{"text", &Block::text}, Field{"checked", &Block::checked},
                          Field{"tone", &Block::tone}, Field{"language", &Block::language}};
    }
};
