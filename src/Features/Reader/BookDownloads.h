#pragma once

#include "Features/Reader/GutenbergClient.h"
#include "Foundation/KeyedListModel.h"
#include "Session/OrvelSession.h"

#include <QThreadPool>

#include <map>

/// A book that is being downloaded.
struct BookDownloadRow {
    Q_GADGET
    Q_PROPERTY(qint64 number MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    /// "40 %" or "120 KB"; empty until something has come.
    Q_PROPERTY(QString progressText MEMBER progressText FINAL)

public:
    /// The catalogue's number.
    qint64 id = 0;
    QString title = {};
    QString progressText = {};

    bool operator==(const BookDownloadRow &) const = default;
};

/// The downloads of books. They go on whatever screen is shown, and end with the program.
class BookDownloads : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// `BookDownloadRow`s, in the order in which they were begun.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// What went wrong with the last download that failed; empty for nothing.
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged FINAL)
    /// The title of the book that it speaks of.
    Q_PROPERTY(QString failedTitle READ failedTitle NOTIFY errorMessageChanged FINAL)

public:
    explicit BookDownloads(OrvelSession *session, const GutenbergClient::Options &options = {});
    /// Ends what is under way; a book that is not yet in the library leaves nothing behind.
    ~BookDownloads() override;
    static BookDownloads *create(QQmlEngine *engine, QJSEngine *script);

    QAbstractItemModel *rows() { return &m_rows; }
    /// The download of a book; null if there is none.
    const BookDownloadRow *find(qint64 number) const { return m_rows.find(number); }
    const QString &errorMessage() const { return m_errorMessage; }
    const QString &failedTitle() const { return m_failedTitle; }

    /// Downloads the text of a book, unless that is under way.
    /// @param record the one that lacks its text; null for a book that is not in the library yet
    void begin(const GutenbergBook &book, const QUuid &record = {});
    Q_INVOKABLE void cancel(qint64 number);
    Q_INVOKABLE void dismissError() { setError({}, {}); }

signals:
    /// A download began, went on or ended.
    void changed();
    void errorMessageChanged();
    /// The book is in the library, with its text.
    void bookReady(qint64 number, const QUuid &bookID);

private:
    struct Download {
        /// Ends the exchange when it goes.
        std::unique_ptr<QObject> owner;
        QUuid record;
        /// The record of a new book whose text is being written.
        QUuid newRecord = {};
    };

    WorkspaceStore &store() const { return *m_session->store(); }
    void finish(const GutenbergBook &book, const std::expected<QString, QString> &text);
    void keep(const GutenbergBook &book, const QString &text);
    void finishKeeping(const GutenbergBook &book, const QUuid &id, bool isNew);
    bool end(qint64 number);
    void setError(const QString &title, const QString &message);

    OrvelSession *m_session;
    GutenbergClient m_client;
    KeyedListModel<BookDownloadRow> m_rows;
    std::map<qint64, Download> m_downloads;
    /// The books whose texts are being written.
    QSet<QUuid> m_writing;
    QString m_errorMessage;
    QString m_failedTitle;
    QThreadPool m_background;
};
