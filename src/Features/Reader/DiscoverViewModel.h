#pragma once

#include "Features/Reader/CatalogueRow.h"
#include "Features/Reader/GutenbergClient.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

#include <QThreadPool>
#include <QTimer>

#include <map>

/// The search of the catalogue, and the downloads of what it found.
class DiscoverViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Where the catalogue lies. Set once.
    Q_PROPERTY(QUrl catalogue READ catalogue WRITE setCatalogue NOTIFY catalogueChanged FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged FINAL)
    /// The sentence for the user while the search has failed.
    Q_PROPERTY(QString failure READ failure NOTIFY phaseChanged FINAL)
    /// `CatalogueRow`s; empty unless a search was answered.
    Q_PROPERTY(QAbstractItemModel *results READ results CONSTANT FINAL)
    /// What went wrong with a download; empty for nothing.
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged FINAL)

public:
    enum class Phase { idle, loading, found, nothingFound, failed };
    Q_ENUM(Phase)

    explicit DiscoverViewModel(QObject *parent = nullptr);
    ~DiscoverViewModel() override;

    QUrl catalogue() const { return m_options.catalogue; }
    void setCatalogue(const QUrl &catalogue);
    const QString &query() const { return m_query; }
    /// Searches once the query has stood for a moment.
    void setQuery(const QString &query);
    Phase phase() const { return m_phase; }
    QString failure() const;
    QAbstractItemModel *results() { return &m_results; }
    const QList<CatalogueRow> &rowList() const { return m_results.rows(); }
    const QString &errorMessage() const { return m_errorMessage; }

    /// Opens a book that was found, after its download if it is not in the library.
    Q_INVOKABLE void read(qint64 number);
    Q_INVOKABLE void cancel(qint64 number);
    /// Downloads the text of a book of the library that has none on disk.
    Q_INVOKABLE void fetchAgain(const QUuid &bookID);
    Q_INVOKABLE void dismissError() { setErrorMessage({}); }
    /// Searches at once, as after a failure.
    Q_INVOKABLE void searchNow();

signals:
    void catalogueChanged();
    void queryChanged();
    void phaseChanged();
    void errorMessageChanged();
    /// The book is in the library, with its text.
    void bookReady(const QUuid &bookID);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;

private:
    struct Download {
        /// Ends the exchange when it goes.
        std::unique_ptr<QObject> owner;
        /// The record that lacks its text; null for a book that is not in the library yet.
        QUuid record;
        QString progressText;
    };

    void showPhase();
    void showResults();
    void setErrorMessage(const QString &message);
    void begin(const GutenbergBook &book, const QUuid &record = {});
    void finish(const GutenbergBook &book, const std::expected<QString, QString> &text);
    void keep(const GutenbergBook &book, const QString &text);
    void finishKeeping(const GutenbergBook &book, const QUuid &id, bool isNew);

    GutenbergClient::Options m_options;
    std::unique_ptr<GutenbergClient> m_client;
    QString m_query;
    QTimer m_searchTimer;
    Phase m_phase = Phase::idle;
    KeyedListModel<CatalogueRow> m_results;
    QString m_errorMessage;
    std::map<qint64, Download> m_downloads;
    // Last, so that it has ended before anything that it uses goes.
    QThreadPool m_background;
};
