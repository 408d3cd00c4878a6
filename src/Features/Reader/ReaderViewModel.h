#pragma once

#include "Features/Reader/BookRow.h"
#include "Features/Reader/ReaderMode.h"
#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The reader's frame: the library, which book is open, and how it is set.
class ReaderViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<Choice> modes READ modes CONSTANT FINAL)
    /// Raw text of the `ReaderMode`.
    Q_PROPERTY(QString mode READ mode WRITE setMode NOTIFY modeChanged FINAL)
    /// `BookRow`s.
    Q_PROPERTY(QAbstractItemModel *books READ books CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged FINAL)
    /// The open book; null for none.
    Q_PROPERTY(QUuid selectedBookID READ selectedBookID NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged FINAL)
    /// Its place among the books, -1 for none.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged FINAL)

    Q_PROPERTY(double fontScale READ fontScale NOTIFY settingsChanged FINAL)
    Q_PROPERTY(bool canShrink READ canShrink NOTIFY settingsChanged FINAL)
    Q_PROPERTY(bool canGrow READ canGrow NOTIFY settingsChanged FINAL)
    Q_PROPERTY(bool serif READ isSerif NOTIFY settingsChanged FINAL)
    Q_PROPERTY(bool inkMode READ isInkMode NOTIFY settingsChanged FINAL)

public:
    explicit ReaderViewModel(QObject *parent = nullptr);

    static QList<Choice> modes() { return Choice::all<ReaderMode>(); }
    QString mode() const { return enumRawText(m_mode); }
    /// Unknown texts are ignored.
    void setMode(const QString &mode);
    QAbstractItemModel *books() { return &m_books; }
    bool isEmpty() const { return m_books.rows().isEmpty(); }
    const QUuid &selectedBookID() const { return m_selectedBookID; }
    bool hasSelection() const { return !m_selectedBookID.isNull(); }
    int selectedRow() const { return m_selectedRow; }
    double fontScale() const { return m_settings.fontScale; }
    bool canShrink() const { return m_settings.fontScale > smallestScale; }
    bool canGrow() const { return m_settings.fontScale < largestScale; }
    bool isSerif() const { return m_settings.serif; }
    bool isInkMode() const { return m_settings.inkMode; }

    /// Opens a book of the library.
    Q_INVOKABLE void open(const QUuid &bookID);
    Q_INVOKABLE void closeBook();
    Q_INVOKABLE void remove(const QUuid &bookID);
    /// Makes the text of books larger by so many steps, or smaller.
    Q_INVOKABLE void adjustScale(int steps);
    Q_INVOKABLE void toggleSerif();
    Q_INVOKABLE void toggleInk();

signals:
    void modeChanged();
    void isEmptyChanged();
    void selectionChanged();
    void selectedRowChanged();
    void settingsChanged();

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    static constexpr double smallestScale = 0.85;
    static constexpr double largestScale = 1.6;
    static constexpr double scaleStep = 0.08;

    struct Settings {
        double fontScale = 1;
        bool serif = true;
        bool inkMode = false;

        bool operator==(const Settings &) const = default;
    };

    void select(const QUuid &bookID);
    void findSelectedRow();

    ReaderMode m_mode = ReaderMode::library;
    KeyedListModel<BookRow> m_books;
    QUuid m_selectedBookID;
    int m_selectedRow = -1;
    bool m_isOpened = false;
    Settings m_settings;
};
