#include "Support/Markdown/InertMarkdown.h"

#include "Foundation/LineText.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{
/// Signs within lines, and the tab, which the parser makes blanks of.
constexpr QStringView signs = u"\\`*_[<&\t";
/// Codes that no text holds, since they are reserved for the inside of a program.
constexpr char16_t firstStandIn = u'\xfdd0';

bool isStandIn(QChar character)
{
    return character >= QChar(firstStandIn) && character <= QChar(u'\xfdef');
}

/// Whether HTML that goes on over empty lines may end here.
bool endsHtml(QStringView text, qsizetype begin)
{
    static const QRegularExpression end(QStringLiteral("^</(?:pre|script|style|textarea)>"),
                                        QRegularExpression::CaseInsensitiveOption);
    return text[begin] == u'<' && end.match(text.mid(begin, 11)).hasMatch();
}

void hide(QString &text, qsizetype begin, qsizetype end)
{
    for (qsizetype i = begin; i < end; ++i) {
        const qsizetype sign = text[i] == u'\t' ? -1 : signs.indexOf(text[i]);
        if (sign >= 0 && !endsHtml(text, i))
            text[i] = QChar(char16_t(firstStandIn + sign));
    }
}

/// In code everything is text, the tabs at the beginning of its lines too.
void hideCode(QString &text, qsizetype begin, qsizetype end)
{
    hide(text, begin, end);
    for (qsizetype i = begin; i < end; ++i)
        if (text[i] == u'\t')
            text[i] = QChar(char16_t(firstStandIn + signs.indexOf(u'\t')));
}

/// Walks through the lines and remembers whether they are code between fences that stand at the margin.
class Lines
{
public:
    explicit Lines(QString &text) : m_text(text) {}

    void hideAll()
    {
        qsizetype begin = 0;
        while (begin < m_text.size()) {
            const qsizetype found = m_text.indexOf(u'\n', begin);
            const qsizetype end = found < 0 ? m_text.size() : found;
            hideLine(begin, end);
            begin = end + 1;
        }
    }

private:
    void hideLine(qsizetype begin, qsizetype end)
    {
        const QStringView line = QStringView(m_text).sliced(begin, end - begin);
        if (m_fenceLength > 0) {
            if (closesFence(line))
                m_fenceLength = 0;
            else
                hideCode(m_text, begin, end);
            return;
        }
        const qsizetype start = lengthOfStart(line);
        const QStringView rest = line.sliced(start);
        if (const qsizetype length = opensFence(rest)) {
            if (start == 0) {
                m_fence = rest[0];
                m_fenceLength = length;
            }
            hide(m_text, begin + start + length, end);
            return;
        }
        static const QRegularExpression rule(QStringLiteral("^([_*])[ \\t]*(?:\\1[ \\t]*){2,}$"));
        static const QRegularExpression html(
            QStringLiteral("^<(?:[A-Za-z][A-Za-z0-9-]*(?=[ \\t/>]|$)|[/!?])"));
        if (rule.match(rest).hasMatch())
            return;
        // HTML goes up to an empty line or to its end, which the parser looks for.
        hide(m_text, begin + start + (html.match(rest).hasMatch() ? 1 : 0), end);
    }

    /// The signs of quotes and lists that a line begins with.
    static qsizetype lengthOfStart(QStringView line)
    {
        static const QRegularExpression start(
            QStringLiteral("^(?:[ \\t]|>|[-+*](?=[ \\t]|$)|\\d{1,9}[.)](?=[ \\t]|$))*+"));
        return start.match(line).capturedLength();
    }

    static qsizetype opensFence(QStringView line)
    {
        if (line.isEmpty() || (line[0] != u'`' && line[0] != u'~'))
            return 0;
        qsizetype length = 0;
        while (length < line.size() && line[length] == line[0])
            ++length;
        const bool isFence = length >= 3 && (line[0] == u'~' || !line.sliced(length).contains(u'`'));
        return isFence ? length : 0;
    }

    bool closesFence(QStringView line) const
    {
        const qsizetype most = std::min<qsizetype>(3, line.size());
        qsizetype begin = 0;
        while (begin < most && line[begin] == u' ')
            ++begin;
        qsizetype end = begin;
        while (end < line.size() && line[end] == m_fence)
            ++end;
        return end - begin >= m_fenceLength && line.sliced(end).trimmed().isEmpty();
    }

    QString &m_text;
    QChar m_fence;
    qsizetype m_fenceLength = 0;
};
} // namespace

QString InertMarkdown::of(const QString &markdown)
{
    QString text = markdown;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &character : text) {
        if (character == u'\r')
            character = u'\n';
        else if (isStandIn(character) || character.isNull())
            character = QChar::ReplacementCharacter;
    }
    Lines(text).hideAll();
    return text;
}

QString InertMarkdown::restored(QString text)
{
    for (QChar &character : text)
        if (isStandIn(character))
            character = signs[character.unicode() - firstStandIn];
    return text;
}
