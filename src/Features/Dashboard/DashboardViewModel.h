#pragma once

#include "Features/Dashboard/DashboardTile.h"
#include "Features/Tasks/TaskRow.h"
#include "Features/Today/PageLine.h"
#include "Features/Today/ScheduleItem.h"
#include "Foundation/KeyedListModel.h"
#include "Models/Project.h"
#include "Session/ViewModel.h"

#include <QRandomGenerator>

/// The tabs of the library.
enum class LibraryTab { recent, favourites };

template <>
struct EnumTable<LibraryTab> {
    static constexpr auto cases = std::to_array<EnumCase<LibraryTab>>({
        {LibraryTab::recent, "recent", QT_TRANSLATE_NOOP("EnumLabel", "Recent")},
        {LibraryTab::favourites, "favourites", QT_TRANSLATE_NOOP("EnumLabel", "Favourites")},
    });
};

/// What the dashboard shows.
class DashboardViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString dateText READ dateText NOTIFY dayChanged FINAL)
    Q_PROPERTY(QString quoteText READ quoteText NOTIFY quoteChanged FINAL)
    Q_PROPERTY(QString quoteAuthor READ quoteAuthor NOTIFY quoteChanged FINAL)
    /// `DashboardTile`s.
    Q_PROPERTY(QAbstractItemModel *tiles READ tiles CONSTANT FINAL)
    /// `ScheduleItem`s of today's events.
    Q_PROPERTY(QAbstractItemModel *events READ events CONSTANT FINAL)
    /// `TaskRow`s of the first tasks that are due today.
    Q_PROPERTY(QAbstractItemModel *dueTasks READ dueTasks CONSTANT FINAL)
    /// "2 more"; empty if all of them are listed.
    Q_PROPERTY(QString moreDueText READ moreDueText NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY tasksChanged FINAL)
    /// Of all tasks, from 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY tasksChanged FINAL)

    Q_PROPERTY(QList<Choice> libraryTabs READ libraryTabs CONSTANT FINAL)
    /// A raw text; unknown ones are ignored.
    Q_PROPERTY(QString libraryTab READ libraryTab WRITE setLibraryTab NOTIFY libraryTabChanged FINAL)
    /// `PageLine`s, at first a few.
    Q_PROPERTY(QAbstractItemModel *library READ library CONSTANT FINAL)
    /// "12 more"; empty if all of them are listed.
    Q_PROPERTY(QString morePagesText READ morePagesText NOTIFY libraryChanged FINAL)
    /// What stands in place of a library without pages.
    Q_PROPERTY(QString emptyLibraryText READ emptyLibraryText NOTIFY libraryTabChanged FINAL)

public:
    /// @param random chooses quotes; it lives longer than the view model
    explicit DashboardViewModel(QObject *parent = nullptr,
                                QRandomGenerator *random = QRandomGenerator::global());

    QString dateText() const;
    const QString &quoteText() const { return m_quote.text; }
    const QString &quoteAuthor() const { return m_quote.author; }
    /// Shows another quote.
    Q_INVOKABLE void shuffleQuote();
    QAbstractItemModel *tiles() { return &m_tiles; }
    QAbstractItemModel *events() { return &m_events; }
    QAbstractItemModel *dueTasks() { return &m_dueTasks; }
    QString moreDueText() const { return moreText(m_dueCount - m_dueTasks.rows().size()); }
    QString progressText() const;
    double progress() const
    {
        return double(m_progress.done) / double(std::max<qint64>(1, m_progress.total));
    }

    static QList<Choice> libraryTabs() { return Choice::all<LibraryTab>(); }
    QString libraryTab() const { return enumRawText(m_libraryTab); }
    void setLibraryTab(const QString &tab);
    QAbstractItemModel *library() { return &m_library; }
    QString morePagesText() const { return moreText(m_pageCount - m_library.rows().size()); }
    /// Lists some more of them.
    Q_INVOKABLE void showMorePages();
    QString emptyLibraryText() const;

    /// Makes an empty page and opens it.
    Q_INVOKABLE void newPage();

signals:
    void dayChanged();
    void quoteChanged();
    void tasksChanged();
    void libraryTabChanged();
    void libraryChanged();

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;

private:
    void showQuote();
    void showTasks();
    void showEvents();
    void showLibrary();
    static QString moreText(qsizetype count);
    void setCount(DashboardTile::Kind kind, qsizetype count);

    QRandomGenerator *m_random;
    Quote m_quote;
    KeyedListModel<DashboardTile> m_tiles;
    KeyedListModel<ScheduleItem> m_events;
    KeyedListModel<TaskRow> m_dueTasks;
    qsizetype m_dueCount = 0;
    ProjectProgress m_progress;
    LibraryTab m_libraryTab = LibraryTab::recent;
    KeyedListModel<PageLine> m_library;
    qsizetype m_pageCount = 0;
    qsizetype m_pageLimit = 0;
};
