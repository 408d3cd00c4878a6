#pragma once

#include "Features/Reader/BookFinder.h"
#include "Features/Reader/BookRows.h"
#include "Features/Reader/BookSelection.h"
#include "Session/ViewModel.h"

#include <QThreadPool>
#include <QTimer>

/// The open book: its text, which is read and cut into rows on a thread of its own, and the user's place in
/// it.
class BookViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Null for no book.
    Q_PROPERTY(QUuid bookID READ bookID WRITE setBookID NOTIFY bookIDChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY bookChanged FINAL)
    Q_PROPERTY(QString author READ author NOTIFY bookChanged FINAL)
    /// Whether the text is still being read.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY loaded FINAL)
    /// Whether there is no text to show.
    Q_PROPERTY(bool isMissing READ isMissing NOTIFY loaded FINAL)
    /// The text in rows with the roles `text`, `isHeading` and `continues`.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// The row at the top of the view; it becomes the user's place in the book.
    Q_PROPERTY(int topRow READ topRow WRITE setTopRow NOTIFY topRowChanged FINAL)
    /// What is read, from 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY topRowChanged FINAL)
    Q_PROPERTY(QString timeLeftText READ timeLeftText NOTIFY topRowChanged FINAL)
    Q_PROPERTY(BookFinder *finder READ finder CONSTANT FINAL)
    Q_PROPERTY(BookSelection *selection READ selection CONSTANT FINAL)

public:
    explicit BookViewModel(QObject *parent = nullptr);
    ~BookViewModel() override;

    QUuid bookID() const { return m_bookID; }
    void setBookID(const QUuid &id);
    const QString &title() const { return m_title; }
    const QString &author() const { return m_author; }
    bool isLoading() const { return m_isLoading; }
    bool isMissing() const { return !m_isLoading && m_rows.rowCount() == 0; }
    QAbstractItemModel *rows() { return &m_rows; }
    int topRow() const { return m_topRow; }
    void setTopRow(int row);
    double progress() const;
    QString timeLeftText() const;
    BookFinder *finder() { return &m_finder; }
    BookSelection *selection() { return &m_selection; }

    /// Reads the text anew, such as after a download.
    Q_INVOKABLE void reload();
    /// Writes the user's place down at once rather than in a moment.
    Q_INVOKABLE void keepPlace();

signals:
    void bookIDChanged();
    void bookChanged();
    /// The text is there, with `topRow` where the user was last; or loading has begun.
    void loaded();
    void topRowChanged();

protected:
    void start() override { reload(); }
    void refresh(const ChangeSet &changes) override;

private:
    void show(SharedBookContents contents);
    void showRecord();

    QUuid m_bookID;
    QString m_title;
    QString m_author;
    SharedBookContents m_contents;
    BookRows m_rows;
    BookFinder m_finder;
    BookSelection m_selection;
    int m_topRow = 0;
    bool m_isLoading = false;
    int m_loads = 0;
    /// Whether the place is another one than the book has.
    bool m_hasMoved = false;
    QTimer m_placeTimer;
    // Last, so that it has ended before anything that it uses goes.
    QThreadPool m_background;
};
