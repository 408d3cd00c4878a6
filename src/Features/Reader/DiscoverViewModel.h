#pragma once

#include "Features/Reader/BookDownloads.h"
#include "Features/Reader/CatalogueRow.h"
#include "Features/Reader/GutenbergClient.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

#include <QTimer>

/// The search of the catalogue, and the way from what it found to a book of the library.
class DiscoverViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Where the catalogue lies. Set once.
    Q_PROPERTY(QUrl catalogue READ catalogue WRITE setCatalogue NOTIFY catalogueChanged FINAL)
    /// They outlive the screen. Set once.
    Q_PROPERTY(
        BookDownloads *downloads READ downloads WRITE setDownloads NOTIFY downloadsChanged REQUIRED FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged FINAL)
    /// The sentence for the user while the search has failed.
    Q_PROPERTY(QString failure READ failure NOTIFY phaseChanged FINAL)
    /// `CatalogueRow`s; empty unless a search was answered.
    Q_PROPERTY(QAbstractItemModel *results READ results CONSTANT FINAL)

public:
    enum class Phase { idle, loading, found, nothingFound, failed };
    Q_ENUM(Phase)

    explicit DiscoverViewModel(QObject *parent = nullptr);

    QUrl catalogue() const { return m_options.catalogue; }
    void setCatalogue(const QUrl &catalogue);
    BookDownloads *downloads() const { return m_downloads; }
    void setDownloads(BookDownloads *downloads);
    const QString &query() const { return m_query; }
    /// Searches once the query has stood for a moment.
    void setQuery(const QString &query);
    Phase phase() const { return m_phase; }
    QString failure() const;
    QAbstractItemModel *results() { return &m_results; }
    const QList<CatalogueRow> &rowList() const { return m_results.rows(); }

    /// Opens a book that was found, after its download if it is not in the library.
    Q_INVOKABLE void read(qint64 number);
    /// Downloads the text of a book of the library that has none on disk.
    Q_INVOKABLE void fetchAgain(const QUuid &bookID);
    /// Searches at once, as after a failure.
    Q_INVOKABLE void searchNow();

signals:
    void catalogueChanged();
    void downloadsChanged();
    void queryChanged();
    void phaseChanged();
    /// A book that the user asked for here is in the library, with its text.
    void bookReady(const QUuid &bookID);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;

private:
    void showPhase();
    void showResults();
    void begin(const GutenbergBook &book, const QUuid &record = {});
    void finish(qint64 number, const QUuid &bookID);

    GutenbergClient::Options m_options;
    std::unique_ptr<GutenbergClient> m_client;
    QString m_query;
    QTimer m_searchTimer;
    Phase m_phase = Phase::idle;
    KeyedListModel<CatalogueRow> m_results;
    BookDownloads *m_downloads = nullptr;
    /// The books that are opened once they are there.
    QSet<qint64> m_awaited;
};
