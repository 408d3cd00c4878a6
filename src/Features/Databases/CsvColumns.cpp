#include "Features/Databases/CsvColumns.h"

#include "Features/Databases/DBValue.h"
#include "Support/OVDate.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace
{
using Type = DBPropertyType;

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
        for (const QStringList &row : m_table.rows) {
            const QString text = row.at(m_column).trimmed();
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
        QSet<QString> seen;
        for (const QStringList &row : m_table.rows) {
            const QString text = row.at(m_column).trimmed();
            if (text.isEmpty() || seen.contains(text))
                continue;
            seen.insert(text);
            texts.append(text);
            if (texts.size() > most)
                break;
        }
        return texts;
    }

    qsizetype count() const
    {
        return std::ranges::count_if(
            m_table.rows, [this](const QStringList &row) { return !row.at(m_column).trimmed().isEmpty(); });
    }

private:
    const CsvTable &m_table;
    qsizetype m_column;
};

QDate parseDay(const QString &text, const QString &form)
{
    if (form.isEmpty())
        return {};
    return QLocale::c().toDate(text, form);
}

/// The form in which all texts write their days; empty if there is none. Where day and month can't be told
/// apart, the locale's own order comes first.
QString dateForm(const Column &column, const QLocale &locale)
{
    QStringList forms{QStringLiteral("yyyy-MM-dd"), QStringLiteral("yyyy/M/d"), QStringLiteral("d.M.yyyy")};
    const bool isMonthFirst = locale.dateFormat(QLocale::ShortFormat).indexOf(u'M') <
                              locale.dateFormat(QLocale::ShortFormat).indexOf(u'd');
    const QString dayFirst = QStringLiteral("d/M/yyyy"), monthFirst = QStringLiteral("M/d/yyyy");
    forms += isMonthFirst ? QStringList{monthFirst, dayFirst} : QStringList{dayFirst, monthFirst};
    forms += {QStringLiteral("d-M-yyyy"),    QStringLiteral("d MMM yyyy"),   QStringLiteral("MMM d, yyyy"),
              QStringLiteral("d MMMM yyyy"), QStringLiteral("MMMM d, yyyy"), QStringLiteral("yyyyMMdd")};
    for (const QString &form : std::as_const(forms))
        if (column.all([&form](const QString &text) { return parseDay(text, form).isValid(); }))
            return form;
    return {};
}

bool isCheck(const QString &text)
{
    static const QSet<QString> words{QStringLiteral("true"), QStringLiteral("false"), QStringLiteral("yes"),
                                     QStringLiteral("no"), QStringLiteral("✓")};
    return words.contains(text.toLower());
}

bool isPercent(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\d{1,3} ?%$"));
    return pattern.match(text).hasMatch();
}

bool isUrl(const QString &text)
{
    return text.startsWith(QLatin1String("http://")) || text.startsWith(QLatin1String("https://"));
}

Type guessType(const Column &column, const QLocale &locale)
{
    if (column.all(isCheck))
        return Type::checkbox;
    if (!dateForm(column, locale).isEmpty())
        return Type::date;
    if (column.all([](const QString &text) { return DBValue::number(text).has_value(); }))
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
    for (qsizetype i = 0; i < table.names.size(); ++i) {
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

QString CsvColumns::Converter::value(const QString &text) const
{
    if (m_property.type == Type::date) {
        const QDate day = parseDay(text.trimmed(), m_dateForm);
        return day.isValid() ? OVDate::dayKey(day) : text;
    }
    // A number in a form of its own is kept as it is written.
    return m_property.type == Type::number ? text.trimmed() : DBValue::pasted(m_property, text);
}
