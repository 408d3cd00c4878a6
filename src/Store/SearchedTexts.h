#pragma once

#include "Foundation/TextSignature.h"
#include "Models/CodeDocument.h"
#include "Models/Page.h"

/// Looks into the long texts of records, case aside. Ask one for many records: it keeps the memory in which
/// each text is made ready.
class SearchedTexts
{
public:
    /// Whether the title or the text holds the query, which is in lower case and without blanks at its ends.
    bool hold(const Page &page, const QString &query);
    bool hold(const CodeDocument &document, const QString &query);

    TextSignature signature(const Page &page);
    TextSignature signature(const CodeDocument &document);

private:
    template <typename Record>
    TextSignature signatureOf(const Record &record);
    template <typename Take>
    bool any(const Page &page, Take take);
    template <typename Take>
    bool any(const CodeDocument &document, Take take);

    QString m_lower;
};
