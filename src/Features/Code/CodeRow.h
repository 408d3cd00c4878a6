#pragma once

#include "Models/CodeDocument.h"

#include <QObject>

/// A document in the rail of the code screen.
struct CodeRow {
    Q_GADGET
    Q_PROPERTY(QUuid documentID MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)

public:
    QUuid id;
    QString title = {};
    /// The language and how long it is.
    QString detail = {};

    bool operator==(const CodeRow &) const = default;

    static CodeRow of(const CodeDocument &document);
    /// "1 line", "12 lines"
    static QString lineCountText(qsizetype count);
    /// Whether the title, the language's label or the source contain the text, whatever its case.
    static bool matches(const CodeDocument &document, const QString &query);
    static bool languageMatches(const CodeDocument &document, const QString &query);
};
