#pragma once

#include "Features/Calendar/CalendarCell.h"
#include "Features/Calendar/CalendarPeriod.h"
#include "Features/Calendar/CalendarRow.h"
#include "Features/Calendar/EventForm.h"
#include "Session/ViewModel.h"

/// What the calendar shows: a grid of days in the modes month and week, a list in the modes day and agenda.
/// Modes are told by their raw texts.
class CalendarViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<Choice> modes READ modes CONSTANT FINAL)
    Q_PROPERTY(QString mode READ mode WRITE setMode NOTIFY modeChanged FINAL)
    /// Whether the mode shows a grid of days, and not a list.
    Q_PROPERTY(bool showsGrid READ showsGrid NOTIFY modeChanged FINAL)
    Q_PROPERTY(QString periodLabel READ periodLabel NOTIFY periodChanged FINAL)
    /// "Add on Nov 23"
    Q_PROPERTY(QString addLabel READ addLabel NOTIFY periodChanged FINAL)
    Q_PROPERTY(EventForm *form READ form CONSTANT FINAL)

    /// "Sun" to "Sat".
    Q_PROPERTY(QStringList weekdaySymbols READ weekdaySymbols CONSTANT FINAL)
    /// `CalendarCell`s.
    Q_PROPERTY(QAbstractItemModel *cells READ cells CONSTANT FINAL)
    /// The cell of the selected day; -1 where it isn't shown.
    Q_PROPERTY(int selectedCell READ selectedCell NOTIFY periodChanged FINAL)
    /// What the keyboard's day is, for assistive technology.
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY periodChanged FINAL)
    /// `CalendarRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// Whether the list has nothing to show.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY periodChanged FINAL)

public:
    /// Chips in a cell.
    static constexpr qsizetype monthChips = 3;
    static constexpr qsizetype weekChips = 6;

    explicit CalendarViewModel(QObject *parent = nullptr);

    static QList<Choice> modes();
    QString mode() const { return enumRawText(m_mode); }
    /// Goes on at the selected day where it is shown. Unknown texts are ignored.
    void setMode(const QString &mode);
    bool showsGrid() const { return m_mode == CalendarMode::month || m_mode == CalendarMode::week; }
    QString periodLabel() const { return CalendarPeriod::label(m_mode, m_cursor, m_selected); }
    QString addLabel() const;
    EventForm *form() { return &m_form; }

    static QStringList weekdaySymbols();
    QAbstractItemModel *cells() { return &m_cells; }
    int selectedCell() const;
    QString selectedText() const;
    QAbstractItemModel *rows() { return &m_rows; }
    bool isEmpty() const { return m_rows.rows().isEmpty(); }

    /// Goes so many periods on or back. Only the day mode takes the selected day along.
    Q_INVOKABLE void step(int delta);
    Q_INVOKABLE void goToToday();
    Q_INVOKABLE void selectCell(int cell);
    /// Moves the selected day; the period follows it. A selected day that isn't shown comes back first.
    Q_INVOKABLE void moveSelection(int days);
    /// Shows the selected day, or that of a row, in the day mode.
    Q_INVOKABLE void openSelected() { setMode(enumRawText(CalendarMode::day)); }
    Q_INVOKABLE void openDayOf(int row);
    /// Whether the row is an item, and not a date.
    Q_INVOKABLE bool isItem(int row) const;

    /// Adds the event that the form describes on the selected day, unless its title is blank.
    Q_INVOKABLE void addEvent();
    Q_INVOKABLE void deleteEvent(const QUuid &eventID);

signals:
    void modeChanged();
    /// Other days are shown, or others of them are selected, or their items have changed.
    void periodChanged();
    /// A step was undone on the selected day, in this row; -1 for the grid.
    void revealed(int row);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    QList<QDate> days() const { return CalendarPeriod::days(m_mode, m_cursor, m_selected); }
    void select(QDate day);
    void show();
    void followToday();
    void layOut();
    CalendarCell cellOf(int index, QDate day, const DayItems &items) const;
    QList<CalendarRow> rowsOf(QDate day, const DayItems &items) const;
    Timestamp selectedMoment() const;

    CalendarMode m_mode = CalendarMode::month;
    QDate m_today;
    QDate m_cursor;
    QDate m_selected;
    QTime m_selectedTime;
    EventForm m_form;
    KeyedListModel<CalendarCell> m_cells;
    KeyedListModel<CalendarRow> m_rows;
};
