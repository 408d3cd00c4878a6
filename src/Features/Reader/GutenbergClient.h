#pragma once

#include "Features/Reader/GutenbergBook.h"
#include "Foundation/Http.h"

#include <QObject>

#include <memory>

/// Searches the catalogue of Project Gutenberg and downloads the texts of its books.
class GutenbergClient : public QObject
{
    Q_OBJECT

public:
    struct Options {
        /// The catalogue is asked at the path "/books" below this address.
        QUrl catalogue = QUrl(QStringLiteral("https://gutendex.com"));
        /// A page of the catalogue holds 32 books and a fraction of a megabyte.
        HttpLimits searchLimits{std::chrono::minutes(1), std::chrono::minutes(1), 8 * 1024 * 1024};
        /// The longest books have some ten megabytes.
        HttpLimits downloadLimits{std::chrono::minutes(10), std::chrono::minutes(1), 64 * 1024 * 1024};
    };

    enum class Phase { idle, loading, loaded, failed };

    explicit GutenbergClient(Options options, QObject *parent = nullptr);

    Phase phase() const { return m_phase; }
    /// The sentence for the user while the phase is `failed`, else empty.
    const QString &failure() const { return m_failure; }
    /// What the last answered search found, in the catalogue's order; a failed search leaves it as it was.
    const QList<GutenbergBook> &results() const { return m_results; }

    /// Looks for English books, in the place of a search that is under way. A blank query clears the results.
    void search(const QString &query);

    /// Bytes that have come, and of how many; -1 while that is not known.
    using Progress = std::function<void(qint64 received, qint64 total)>;
    using Downloaded = std::function<void(const std::expected<QString, QString> &)>;
    /// Gives the text of the book without its licence, or the sentence for the user, and tells ten times a
    /// second how far it has come. `done` is called once, after the call has returned, unless the owner is
    /// destroyed first: then the download ends at once.
    void download(const GutenbergBook &book, QObject *owner, Progress progress, Downloaded done) const;

    /// The book alone, without the licence before and after it and without white space at its ends.
    static QString stripBoilerplate(const QString &text);

signals:
    void phaseChanged();
    void resultsChanged();

private:
    std::optional<QUrl> searchURL(const QString &query) const;
    void setPhase(Phase phase, const QString &failure = {});
    void setResults(const QList<GutenbergBook> &results);

    Options m_options;
    /// Ends the exchange of the search that is under way when it goes.
    std::unique_ptr<QObject> m_search;
    Phase m_phase = Phase::idle;
    QString m_failure;
    QList<GutenbergBook> m_results;
};
