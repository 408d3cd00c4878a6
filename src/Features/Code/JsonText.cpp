#include "Features/Code/JsonText.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>
#include <vector>

namespace
{
constexpr int deepest = 512;

struct Node {
    enum class Kind { scalar, array, object };
    Kind kind = Kind::scalar;
    /// A scalar as it is written.
    QStringView text;
    /// In an object, each with its key, as it is written.
    std::vector<Node> children;
    QStringView key;
};

constexpr bool isDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

class Parser
{
    Q_DECLARE_TR_FUNCTIONS(JsonText)

public:
    explicit Parser(QStringView text) : m_text(text) {}

    std::expected<Node, QString> parse()
    {
        Node root;
        if (!parseValue(root, 0))
            return std::unexpected(m_error);
        skipBlanks();
        if (m_at < m_text.size())
            return std::unexpected(unexpectedUnit());
        return root;
    }

private:
    /// The unit here; 0 at the end.
    char16_t unit() const { return m_at < m_text.size() ? m_text[m_at].unicode() : 0; }

    bool take(char16_t wanted)
    {
        if (unit() != wanted)
            return false;
        ++m_at;
        return true;
    }

    void skipBlanks()
    {
        while (unit() == u' ' || unit() == u'\n' || unit() == u'\t' || unit() == u'\r')
            ++m_at;
    }

    QString place() const
    {
        const QStringView before = m_text.first(m_at);
        const qsizetype line = before.count(u'\n') + 1, column = m_at - before.lastIndexOf(u'\n');
        return tr("line %1, column %2.").arg(line).arg(column);
    }

    QString unexpectedUnit() const
    {
        if (m_at >= m_text.size())
            return tr("the text ends too early, at %1").arg(place());
        if (unit() < u' ')
            return tr("unexpected control character at %1").arg(place());
        const bool isPair = m_text[m_at].isHighSurrogate() && m_at + 1 < m_text.size();
        return tr("unexpected \u201c%1\u201d at %2").arg(m_text.mid(m_at, isPair ? 2 : 1), place());
    }

    bool fail(const QString &error)
    {
        m_error = error;
        return false;
    }
    bool fail() { return fail(unexpectedUnit()); }

    bool parseValue(Node &node, int depth)
    {
        if (depth > deepest)
            return fail(tr("too many brackets within each other, at %1").arg(place()));
        skipBlanks();
        const qsizetype start = m_at;
        if (take(u'{'))
            return parseObject(node, depth);
        if (take(u'['))
            return parseArray(node, depth);
        const bool isScalar = unit() == u'"'
                                  ? parseString()
                                  : (isDigit(unit()) || unit() == u'-' ? parseNumber() : parseName());
        node.text = m_text.sliced(start, m_at - start);
        return isScalar;
    }

    bool parseArray(Node &node, int depth)
    {
        node.kind = Node::Kind::array;
        skipBlanks();
        if (take(u']'))
            return true;
        do {
            if (!parseValue(node.children.emplace_back(), depth + 1))
                return false;
            skipBlanks();
        } while (take(u','));
        return take(u']') || fail();
    }

    bool parseObject(Node &node, int depth)
    {
        node.kind = Node::Kind::object;
        skipBlanks();
        if (take(u'}'))
            return true;
        do {
            skipBlanks();
            const qsizetype start = m_at;
            if (!parseString())
                return false;
            Node &child = node.children.emplace_back();
            child.key = m_text.sliced(start, m_at - start);
            skipBlanks();
            if (!take(u':'))
                return fail();
            if (!parseValue(child, depth + 1))
                return false;
            skipBlanks();
        } while (take(u','));
        return take(u'}') || fail();
    }

    bool parseString()
    {
        if (!take(u'"'))
            return fail();
        while (unit() >= u' ' && unit() != u'"') {
            if (take(u'\\')) {
                if (!parseEscape())
                    return fail();
            } else {
                ++m_at;
            }
        }
        if (unit() == u'\n' || unit() == u'\r')
            return fail(tr("a string has to end in its line, at %1").arg(place()));
        return take(u'"') || fail();
    }

    bool parseEscape()
    {
        if (!take(u'u'))
            return QStringView(u"\"\\/bfnrt").contains(unit()) && m_at++ < m_text.size();
        for (int i = 0; i < 4; ++i, ++m_at)
            if (!isDigit(unit()) && !QStringView(u"abcdefABCDEF").contains(unit()))
                return false;
        return true;
    }

    bool takeDigits()
    {
        const qsizetype start = m_at;
        while (isDigit(unit()))
            ++m_at;
        return m_at > start;
    }

    bool parseNumber()
    {
        take(u'-');
        if (!take(u'0') && !takeDigits())
            return fail();
        if (take(u'.') && !takeDigits())
            return fail();
        if (take(u'e') || take(u'E')) {
            if (!take(u'+'))
                take(u'-');
            if (!takeDigits())
                return fail();
        }
        return true;
    }

    bool parseName()
    {
        for (const QStringView name : {QStringView(u"true"), QStringView(u"false"), QStringView(u"null")})
            if (m_text.sliced(m_at).startsWith(name)) {
                m_at += name.size();
                return true;
            }
        return fail();
    }

    QStringView m_text;
    qsizetype m_at = 0;
    QString m_error;
};

void startLine(QString &out, int level)
{
    out += QLatin1Char('\n');
    out.resize(out.size() + 2 * level, QLatin1Char(' '));
}

void write(QString &out, Node &node, int level)
{
    if (node.kind == Node::Kind::scalar) {
        out += node.text;
        return;
    }
    const bool isObject = node.kind == Node::Kind::object;
    if (isObject)
        std::ranges::stable_sort(node.children, {}, &Node::key);
    out += QLatin1Char(isObject ? '{' : '[');
    for (bool isFirst = true; Node & child : node.children) {
        if (!std::exchange(isFirst, false))
            out += QLatin1Char(',');
        startLine(out, level + 1);
        if (isObject) {
            out += child.key;
            out += QStringLiteral(": ");
        }
        write(out, child, level + 1);
    }
    if (!node.children.empty())
        startLine(out, level);
    out += QLatin1Char(isObject ? '}' : ']');
}
} // namespace

std::expected<QString, QString> JsonText::pretty(QStringView text)
{
    auto root = Parser(text).parse();
    if (!root)
        return std::unexpected(root.error());
    QString out;
    write(out, *root, 0);
    return out;
}
