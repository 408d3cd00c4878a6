#include "Store/SearchedTexts.h"

#include "Foundation/LowerCase.h"

template <typename Take>
bool SearchedTexts::any(const Page &page, Take take)
{
    m_lower.resize(0);
    LowerCase::append(m_lower, page.title);
    if (take(m_lower))
        return true;
    // As the preview has it, but for the blanks around it, which no query can tell.
    m_lower.resize(0);
    for (const Block &block : page.content) {
        LowerCase::append(m_lower, block.text);
        m_lower += u' ';
    }
    return take(m_lower);
}

template <typename Take>
bool SearchedTexts::any(const CodeDocument &document, Take take)
{
    for (const QString &text : {document.title, document.source}) {
        m_lower.resize(0);
        LowerCase::append(m_lower, text);
        if (take(m_lower))
            return true;
    }
    return false;
}

bool SearchedTexts::hold(const Page &page, const QString &query)
{
    return any(page, [&query](QStringView lower) { return lower.contains(query); });
}

bool SearchedTexts::hold(const CodeDocument &document, const QString &query)
{
    return any(document, [&query](QStringView lower) { return lower.contains(query); });
}

template <typename Record>
TextSignature SearchedTexts::signatureOf(const Record &record)
{
    TextSignature signature;
    any(record, [&signature](QStringView lower) {
        signature.add(lower);
        return false;
    });
    return signature;
}

TextSignature SearchedTexts::signature(const Page &page)
{
    return signatureOf(page);
}

TextSignature SearchedTexts::signature(const CodeDocument &document)
{
    return signatureOf(document);
}
