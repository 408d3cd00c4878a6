#include "Features/Notes/NoteRow.h"

#include "Foundation/Graphemes.h"
#include "Foundation/LineText.h"
#include "Support/OVDate.h"

namespace
{
/// The texts of the blocks, joined with blanks and without leading ones, as far as a preview can need them.
QString beginning(const QList<Block> &blocks)
{
    // Characters of several parts count as one; no usual one has more than this.
    static constexpr qsizetype mostParts = 16;
    static constexpr qsizetype enough = NoteRow::previewLength * mostParts;
    QString text;
    for (const Block &block : blocks) {
        if (!text.isEmpty())
            text += u' ';
        text += block.text.left(enough);
        if (!text.isEmpty() && text.front().isSpace())
            text = text.trimmed();
        if (text.size() >= enough)
            break;
    }
    return text;
}
} // namespace

NoteRow NoteRow::of(const Page &note, QDate today, const QTimeZone &zone)
{
    return {note.id, note.icon, note.title, note.content, note.updatedDate, today, zone};
}

QString NoteRow::titleText() const
{
    return LineText::shownTitle(title);
}

QString NoteRow::preview() const
{
    const QString text = LineText::shown(beginning(content).trimmed(), previewLength * 16);
    if (text.isEmpty())
        return QCoreApplication::translate("NoteRow", "Empty note");
    const QString shown = Graphemes::left(text, previewLength);
    return shown.size() < text.size() ? shown.trimmed() + u'…' : shown;
}

bool NoteRow::isBlank() const
{
    return std::ranges::all_of(content, [](const Block &block) { return block.text.trimmed().isEmpty(); });
}

QString NoteRow::dateText() const
{
    return OVDate::relative(OVDate::day(updatedDate, zone), today);
}
