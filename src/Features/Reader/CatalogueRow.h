#pragma once

#include "Features/Reader/GutenbergBook.h"

#include <QObject>

/// A book that was found in the catalogue.
struct CatalogueRow {
    Q_GADGET
    Q_PROPERTY(qint64 number MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString author MEMBER author FINAL)
    /// Whether it exists as plain text, and so can be read here.
    Q_PROPERTY(bool hasText MEMBER hasText FINAL)
    Q_PROPERTY(bool isInLibrary MEMBER isInLibrary FINAL)
    Q_PROPERTY(bool isDownloading MEMBER isDownloading FINAL)
    /// "40 %" or "120 KB"; empty until something has come.
    Q_PROPERTY(QString progressText MEMBER progressText FINAL)

public:
    /// The catalogue's number.
    qint64 id = 0;
    QString title = {};
    QString author = {};
    bool hasText = false;
    bool isInLibrary = false;
    bool isDownloading = false;
    QString progressText = {};

    bool operator==(const CatalogueRow &) const = default;

    static CatalogueRow of(const GutenbergBook &book);
    static QString progressOf(qint64 received, qint64 total);
};
