#pragma once

#include "Features/Decks/DeckRow.h"
#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The open deck: its slides, the selected one of them, and what is done to both.
class DeckEditorViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant deckID READ deckVariant WRITE setDeckVariant NOTIFY deckIDChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY deckChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY deckChanged FINAL)
    Q_PROPERTY(QString author READ author NOTIFY deckChanged FINAL)
    Q_PROPERTY(bool showNumbers READ showNumbers NOTIFY deckChanged FINAL)
    Q_PROPERTY(QString themeID READ themeID NOTIFY deckChanged FINAL)
    Q_PROPERTY(int slideCount READ slideCount NOTIFY deckChanged FINAL)

    /// `SlideRow`s.
    Q_PROPERTY(QAbstractItemModel *slides READ slides CONSTANT FINAL)
    /// -1 for none.
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged FINAL)
    Q_PROPERTY(bool hasSlide READ hasSlide NOTIFY slideChanged FINAL)
    Q_PROPERTY(QVariant slideID READ slideVariant NOTIFY slideChanged FINAL)
    Q_PROPERTY(ShownSlide shown READ shown NOTIFY slideChanged FINAL)
    /// The place of its kind among `kinds`.
    Q_PROPERTY(int kindIndex READ kindIndex NOTIFY slideChanged FINAL)
    Q_PROPERTY(QString notes READ notes NOTIFY slideChanged FINAL)
    /// `SlideFieldRow`s of the selected slide.
    Q_PROPERTY(QAbstractItemModel *fields READ fields CONSTANT FINAL)
    Q_PROPERTY(QList<Choice> kinds READ kinds CONSTANT FINAL)

public:
    explicit DeckEditorViewModel(QObject *parent = nullptr);

    QUuid deckID() const { return m_deckID; }
    void setDeckID(const QUuid &id);
    QVariant deckVariant() const { return m_deckID; }
    void setDeckVariant(const QVariant &id) { setDeckID(id.toUuid()); }
    QString title() const { return m_deck.title; }
    QString summary() const { return m_deck.summary; }
    QString author() const { return m_deck.author; }
    bool showNumbers() const { return m_deck.showNumbers; }
    QString themeID() const { return m_deck.theme.id; }
    int slideCount() const { return int(m_deck.slides.size()); }

    QAbstractItemModel *slides() { return &m_slides; }
    int selectedIndex() const { return m_selectedIndex; }
    bool hasSlide() const { return m_selectedIndex >= 0; }
    QUuid slideID() const { return m_shown.slide.id; }
    QVariant slideVariant() const { return m_shown.slide.id; }
    const ShownSlide &shown() const { return m_shown; }
    int kindIndex() const { return int(m_shown.slide.kind); }
    QString notes() const { return m_shown.slide.notes; }
    QAbstractItemModel *fields() { return &m_fields; }
    static QList<Choice> kinds();

    Q_INVOKABLE void selectSlide(const QUuid &id);
    /// An index beyond an end means the slide at that end.
    Q_INVOKABLE void selectAt(int index);

    /// A blank title changes nothing.
    /// @param id of the deck that the title was typed for
    Q_INVOKABLE void rename(const QUuid &id, const QString &title);
    /// These take what was typed over, on one line, and give what is stored then.
    Q_INVOKABLE QString setTitle(const QString &title, int caret = -1);
    Q_INVOKABLE QString setSummary(const QString &summary, int caret = -1);
    Q_INVOKABLE QString setAuthor(const QString &author, int caret = -1);
    Q_INVOKABLE void setShowNumbers(bool showNumbers);
    /// An unknown theme changes nothing.
    Q_INVOKABLE void setTheme(const QString &themeID);

    /// @param kind raw text
    Q_INVOKABLE void addSlide(const QString &kind);
    Q_INVOKABLE void duplicateSlide();
    /// Moves the selected slide so many places on; past either end it does nothing.
    Q_INVOKABLE void moveSlide(int offset);
    Q_INVOKABLE void deleteSlide();
    Q_INVOKABLE void setKind(const QString &kind);
    /// Takes what was typed over into the selected slide, and gives what is stored then.
    /// @param field raw text of a `SlideField`, or "notes"
    Q_INVOKABLE QString setText(const QString &field, const QString &text, int caret = -1);
    /// What is stored in the field of the selected slide.
    Q_INVOKABLE QString text(const QString &field) const;

signals:
    void deckIDChanged();
    void deckChanged();
    void slideChanged();
    void selectedIndexChanged();

protected:
    void refresh(const ChangeSet &changes) override;

private:
    const Deck *stored() const { return store().list<Deck>().first(m_deckID); }
    /// A slide that has come, such as one that undo brought back, is where the user looks next.
    void selectAdded(const Deck &next);
    void showSlide();

    QUuid m_deckID;
    QUuid m_slideID;
    /// The deck as it was told last.
    Deck m_deck;
    ShownSlide m_shown;
    int m_selectedIndex = -1;
    KeyedListModel<SlideRow> m_slides;
    KeyedListModel<SlideFieldRow> m_fields;
};
