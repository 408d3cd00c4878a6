#pragma once

#include "Features/Habits/HabitRow.h"
#include "Session/ViewModel.h"

/// What the Habits screen shows, its form for a new habit, and what is done with habits there.
class HabitsViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// `HabitRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY figuresChanged FINAL)
    /// The figures over all habits, such as "2/5".
    Q_PROPERTY(QString doneText READ doneText NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString bestStreakText READ bestStreakText NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString weekText READ weekText NOTIFY figuresChanged FINAL)

    /// Whether the form is open.
    Q_PROPERTY(bool composing READ isComposing WRITE setComposing NOTIFY composingChanged FINAL)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    /// Whether the name is more than blanks.
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY nameChanged FINAL)
    Q_PROPERTY(QStringList emojiChoices READ emojiChoices CONSTANT FINAL)
    Q_PROPERTY(QString emoji MEMBER m_emoji NOTIFY emojiChanged FINAL)
    Q_PROPERTY(QList<AccentShades> accents READ accents CONSTANT FINAL)
    /// A raw text.
    Q_PROPERTY(QString accent READ accent WRITE setAccent NOTIFY accentChanged FINAL)
    /// Days a week, 1 to 7.
    Q_PROPERTY(int target MEMBER m_target NOTIFY targetChanged FINAL)

public:
    explicit HabitsViewModel(QObject *parent = nullptr);

    QAbstractItemModel *rows() { return &m_rows; }
    bool isEmpty() const { return m_figures.habits == 0; }
    QString doneText() const;
    QString bestStreakText() const { return QString::number(m_figures.bestStreak); }
    QString weekText() const { return QString::number(m_figures.weeklyCount); }

    bool isComposing() const { return m_composing; }
    void setComposing(bool composing);
    const QString &name() const { return m_name; }
    void setName(const QString &name);
    bool canAdd() const;
    static QStringList emojiChoices();
    /// All but the one of plain ink.
    static QList<AccentShades> accents();
    QString accent() const { return enumRawText(m_accent); }
    /// Unknown texts are ignored.
    void setAccent(const QString &accent);
    /// Adds the habit that the form describes, unless its name is blank, and closes the form. The colour
    /// stays for the next one.
    Q_INVOKABLE void addHabit();

    Q_INVOKABLE void toggleToday(const QUuid &habitID);
    /// @param weekday of this week, from 0 for Sunday; ignored if it is still to come
    Q_INVOKABLE void toggleDay(const QUuid &habitID, int weekday);
    Q_INVOKABLE void setHabitTarget(const QUuid &habitID, int target);
    Q_INVOKABLE void remove(const QUuid &habitID);

signals:
    void figuresChanged();
    void composingChanged();
    void nameChanged();
    void emojiChanged();
    void accentChanged();
    void targetChanged();

    /// The row with this index is where a step was undone.
    void revealed(int row);

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    struct Figures {
        qsizetype habits = 0;
        qsizetype doneToday = 0;
        int bestStreak = 0;
        int weeklyCount = 0;

        bool operator==(const Figures &) const = default;
    };
    void forget(const RecordChanges &habits);

    KeyedListModel<HabitRow> m_rows;
    /// Those of habits that did not change are kept: a long streak takes time to count.
    QHash<QUuid, HabitRow> m_known;
    QDate m_knownDay;
    Figures m_figures;

    bool m_composing = false;
    QString m_name;
    QString m_emoji;
    AccentPalette m_accent = AccentPalette::orange;
    int m_target;
};
