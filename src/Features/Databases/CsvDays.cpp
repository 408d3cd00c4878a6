#include "Features/Databases/CsvDays.h"

#include <algorithm>
#include <array>

namespace
{
constexpr std::array<QByteArrayView, 12> monthNames{"January",   "February", "March",    "April",
                                                    "May",       "June",     "July",     "August",
                                                    "September", "October",  "November", "December"};

/// Takes parts of a text off its beginning.
class Parts
{
public:
    explicit Parts(QByteArrayView text) : m_text(text) {}

    bool isAtEnd() const { return m_text.isEmpty(); }
    bool take(char character)
    {
        const bool isThere = !m_text.isEmpty() && m_text.front() == character;
        if (isThere)
            m_text = m_text.sliced(1);
        return isThere;
    }
    /// The number of as many digits as there are within these limits; -1 if there are too few.
    int takeNumber(qsizetype least, qsizetype most)
    {
        int number = 0;
        qsizetype digits = 0;
        for (; digits < std::min(most, m_text.size()) && m_text[digits] >= '0' && m_text[digits] <= '9';
             ++digits)
            number = number * 10 + (m_text[digits] - '0');
        m_text = m_text.sliced(digits);
        return digits < least ? -1 : number;
    }
    /// The month that is named in whole or by three letters, from 1; -1 if there is none.
    int takeMonth()
    {
        for (std::size_t i = 0; i < monthNames.size(); ++i)
            for (const QByteArrayView name : {monthNames[i], monthNames[i].first(3)})
                if (m_text.size() >= name.size() &&
                    qstrnicmp(m_text.data(), name.data(), std::size_t(name.size())) == 0) {
                    m_text = m_text.sliced(name.size());
                    return int(i) + 1;
                }
        return -1;
    }

private:
    QByteArrayView m_text;
};

int takeYear(Parts &parts, qsizetype digits)
{
    constexpr int firstOfThisCentury = 30;
    const int year = parts.takeNumber(digits, digits);
    if (digits > 2 || year < 0)
        return year;
    return year + (year < firstOfThisCentury ? 2000 : 1900);
}
} // namespace

QList<QByteArrayView> CsvDays::forms(const QLocale &locale)
{
    const QString own = locale.dateFormat(QLocale::ShortFormat);
    QList<QByteArrayView> forms{"yyyy-MM-dd", "yyyy/M/d", "d.M.yyyy"};
    // Elsewhere these are numbers of versions and sections.
    if (own.contains(u'.'))
        forms.append("d.M.yy");
    const QList<QByteArrayView> dayFirst{"d/M/yyyy", "d/M/yy"}, monthFirst{"M/d/yyyy", "M/d/yy"};
    forms += own.indexOf(u'M') < own.indexOf(u'd') ? monthFirst + dayFirst : dayFirst + monthFirst;
    forms += QList<QByteArrayView>{"d-M-yyyy", "d MMM yyyy", "d-MMM-yyyy", "MMM d, yyyy", "yyyyMMdd"};
    return forms;
}

std::optional<QDate> CsvDays::parse(QByteArrayView text, QByteArrayView form)
{
    Parts parts(text);
    int year = -1, month = -1, day = -1;
    while (!form.isEmpty()) {
        const char part = form.front();
        const qsizetype length =
            std::ranges::find_if(form, [part](char c) { return c != part; }) - form.begin();
        const qsizetype least = std::min<qsizetype>(length, 2);
        if (part == 'y')
            year = takeYear(parts, length);
        else if (part == 'M')
            month = length > 2 ? parts.takeMonth() : parts.takeNumber(least, 2);
        else if (part == 'd')
            day = parts.takeNumber(least, 2);
        else if (!parts.take(part))
            return std::nullopt;
        form = form.sliced(part == 'y' || part == 'M' || part == 'd' ? length : 1);
    }
    if (!parts.isAtEnd() || year < 0 || !QDate::isValid(year, month, day))
        return std::nullopt;
    return QDate(year, month, day);
}
