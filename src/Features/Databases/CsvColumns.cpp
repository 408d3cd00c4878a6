#include "Features/Databases/CsvColumns.h"

#include "Features/Databases/CsvDays.h"
#include "Features/Databases/DBValue.h"
#include "Support/OVDate.h"

#include <QSet>

#include <algorithm>

namespace
{
using Type = DBPropertyType;

inline QByteArrayView trimmed(QByteArrayView text)
{
    static constexpr QByteArrayView noBreakSpace("\xC2\xA0");
    const auto mayBeSpace = [](char byte) { return byte <= ' '; };
    if (text.isEmpty() || !(mayBeSpace(text.front()) || mayBeSpace(text.back())))
        return text;
    text = text.trimmed();
    while (text.startsWith(noBreakSpace))
        text = text.sliced(noBreakSpace.size()).trimmed();
    while (text.endsWith(noBreakSpace))
        text = text.chopped(noBreakSpace.size()).trimmed();
    return text;
}

/// Tells most short texts apart by a few of their bytes, in less time than a whole hash takes.
std::size_t sketch(QByteArrayView text)
{
    if (text.isEmpty())
        return 0;
    const auto byte = [text](qsizetype i) { return std::size_t(static_cast<unsigned char>(text[i])); };
    const qsizetype last = text.size() - 1;
    return ((byte(0) * 31 + byte(last / 2)) * 31 + byte(last)) * 31 + std::size_t(text.size());
}

/// The texts of a column that are not blank.
class Column
{
public:
    Column(const CsvTable &table, qsizetype column) : m_table(table), m_column(column) {}

    /// Whether all texts pass the test, and there are any.
    template <typename Test>
    bool all(Test test) const
    {
        bool isEmpty = true;
        for (qsizetype row = 0; row < m_table.rowCount(); ++row) {
            const QByteArrayView text = trimmed(m_table.cell(row, m_column));
            if (text.isEmpty())
                continue;
            if (!test(text))
                return false;
            isEmpty = false;
        }
        return !isEmpty;
    }

    /// The different texts in the order of their coming; at most one more than this number.
    QStringList distinct(qsizetype most) const
    {
        QStringList texts;
        QSet<QByteArrayView> seen;
        // Columns of few values are the long way, and these are found here.
        std::array<QByteArrayView, 256> latest;
        for (qsizetype row = 0; row < m_table.rowCount() && texts.size() <= most; ++row) {
            const QByteArrayView text = trimmed(m_table.cell(row, m_column));
            QByteArrayView &known = latest[sketch(text) % latest.size()];
            if (text.isEmpty() || known == text)
                continue;
            known = text;
            if (seen.contains(text))
                continue;
            seen.insert(text);
            texts.append(QString::fromUtf8(text));
        }
        return texts;
    }

    qsizetype count() const
    {
        qsizetype count = 0;
        for (qsizetype row = 0; row < m_table.rowCount(); ++row)
            count += !trimmed(m_table.cell(row, m_column)).isEmpty();
        return count;
    }

private:
    const CsvTable &m_table;
    qsizetype m_column;
};

/// The form in which all texts write their days; empty if there is none.
QByteArrayView dateForm(const Column &column, const QLocale &locale)
{
    const QList<QByteArrayView> forms = CsvDays::forms(locale);
    for (const QByteArrayView form : forms)
        if (column.all([form](QByteArrayView text) { return CsvDays::parse(text, form).has_value(); }))
            return form;
    return {};
}

bool isCheck(QByteArrayView text)
{
    static constexpr std::array<QByteArrayView, 5> words{"true", "false", "yes", "no", "\xE2\x9C\x93"};
    return std::ranges::any_of(words, [text](QByteArrayView word) {
        return text.size() == word.size() &&
               qstrnicmp(text.data(), word.data(), std::size_t(word.size())) == 0;
    });
}

bool isPercent(QByteArrayView text)
{
    if (!text.endsWith('%'))
        return false;
    const QByteArrayView digits = text.chopped(1).trimmed();
    return !digits.isEmpty() && digits.size() <= 3 &&
           std::ranges::all_of(digits, [](char digit) { return digit >= '0' && digit <= '9'; });
}

bool isUrl(QByteArrayView text)
{
    return text.startsWith("http://") || text.startsWith("https://");
}

Type guessType(const Column &column, const QLocale &locale)
{
    if (column.all(isCheck))
        return Type::checkbox;
    if (!dateForm(column, locale).isEmpty())
        return Type::date;
    if (column.all([](QByteArrayView text) { return DBValue::number(text).has_value(); }))
        return Type::number;
    if (column.all(isPercent))
        return Type::progress;
    if (column.all(isUrl))
        return Type::url;
    const QStringList options = column.distinct(CsvColumns::maxOptions);
    const bool repeats = options.size() <= CsvColumns::maxOptions && column.count() >= 2 * options.size();
    const bool areShort = std::ranges::all_of(options, [](const QString &text) { return text.size() <= 40; });
    return !options.isEmpty() && repeats && areShort ? Type::select : Type::text;
}
} // namespace

QList<DBProperty> CsvColumns::guess(const CsvTable &table, const QLocale &locale)
{
    QList<DBProperty> properties;
    for (qsizetype i = 0; i < table.columnCount(); ++i) {
        DBProperty property;
        property.name = table.names.at(i).trimmed();
        if (property.name.isEmpty())
            property.name = QCoreApplication::translate("CsvColumns", "Column %1").arg(i + 1);
        const Column column(table, i);
        // The first column names the records.
        property.type = i == 0 ? Type::text : guessType(column, locale);
        properties.append(withType(property, property.type, table, i));
    }
    return properties;
}

DBProperty CsvColumns::withType(const DBProperty &property, Type type, const CsvTable &table,
                                qsizetype column)
{
    DBProperty changed = property;
    changed.type = type;
    changed.options.clear();
    if (!supportsOptions(type))
        return changed;
    QSet<QString> seen;
    for (const QString &text : Column(table, column).distinct(maxChosenOptions))
        for (const QString &option : type == Type::multiselect ? DBValue::options(text) : QStringList{text})
            if (seen.size() < maxChosenOptions && !seen.contains(option)) {
                seen.insert(option);
                changed.options.append(option);
            }
    return changed;
}

QList<qsizetype> CsvColumns::match(const QStringList &names, const QList<DBProperty> &properties)
{
    QList<qsizetype> matches;
    for (const QString &name : names) {
        // Of two columns with one name the second goes to the second property of that name.
        const auto found = std::ranges::find_if(properties, [&](const DBProperty &property) {
            return property.name.trimmed().compare(name.trimmed(), Qt::CaseInsensitive) == 0 &&
                   !matches.contains(&property - properties.constData());
        });
        matches.append(found == properties.end() ? -1 : found - properties.begin());
    }
    return matches;
}

CsvColumns::Converter::Converter(const DBProperty &property, const CsvTable &table, qsizetype column,
                                 const QLocale &locale)
    : m_property(property)
{
    if (property.type == Type::date)
        m_dateForm = dateForm(Column(table, column), locale);
}

QString CsvColumns::Converter::value(QByteArrayView text)
{
    if (text.isEmpty())
        return {};
    if (text.size() > maxKnownSize)
        return made(text);
    Known &known = m_known[sketch(text) % m_known.size()];
    if (QByteArrayView(known.text.data(), known.size) != text) {
        std::ranges::copy(text, known.text.begin());
        known.size = text.size();
        known.value = made(text);
    }
    return known.value;
}

QString CsvColumns::Converter::made(QByteArrayView text) const
{
    const QString whole = QString::fromUtf8(text);
    switch (m_property.type) {
    case Type::text:
    case Type::url:
        return whole;
    case Type::date: {
        const auto day = CsvDays::parse(trimmed(text), m_dateForm);
        return day ? OVDate::dayKey(*day) : whole;
    }
    // A number in a form of its own is kept as it is written.
    case Type::number:
        return whole.trimmed();
    default:
        return DBValue::pasted(m_property, whole);
    }
}
