#pragma once

#include "Features/Decks/ShownSlide.h"
#include "Session/ViewModel.h"

#include <QSizeF>
#include <QTimer>

/// The presentation over the window: a copy of the deck that `UIState::presentingDeckID` names, the slide it
/// shows, and the time it takes.
class DeckPresenterViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether a deck that exists is presented.
    Q_PROPERTY(bool isPresenting READ isPresenting NOTIFY isPresentingChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY isPresentingChanged FINAL)
    Q_PROPERTY(int index READ index NOTIFY slideChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY isPresentingChanged FINAL)
    Q_PROPERTY(bool hasSlide READ hasSlide NOTIFY slideChanged FINAL)
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY slideChanged FINAL)
    Q_PROPERTY(ShownSlide shown READ shown NOTIFY slideChanged FINAL)
    Q_PROPERTY(ShownSlide next READ next NOTIFY slideChanged FINAL)
    /// From 0 to 1 at the last slide.
    Q_PROPERTY(double progress READ progress NOTIFY slideChanged FINAL)
    Q_PROPERTY(QString positionText READ positionText NOTIFY slideChanged FINAL)
    /// Trimmed; empty if the slide has none.
    Q_PROPERTY(QString notesText READ notesText NOTIFY slideChanged FINAL)
    /// The height of the notes' text, in pixels, kept from one start of the program to the next.
    Q_PROPERTY(double notesHeight READ notesHeight WRITE setNotesHeight NOTIFY notesHeightChanged FINAL)
    Q_PROPERTY(bool blanked READ isBlanked WRITE setBlanked NOTIFY blankedChanged FINAL)
    Q_PROPERTY(QString elapsedText READ elapsedText NOTIFY elapsedTextChanged FINAL)

public:
    explicit DeckPresenterViewModel(QObject *parent = nullptr);

    bool isPresenting() const { return m_deck.has_value(); }
    QString title() const { return m_deck ? m_deck->title : QString(); }
    int index() const { return m_index; }
    int count() const { return m_deck ? int(m_deck->slides.size()) : 0; }
    bool hasSlide() const { return m_index < count(); }
    bool hasNext() const { return m_index + 1 < count(); }
    ShownSlide shown() const { return slide(m_index); }
    ShownSlide next() const { return slide(m_index + 1); }
    double progress() const { return count() > 0 ? double(m_index + 1) / count() : 0; }
    QString positionText() const;
    QString notesText() const;
    double notesHeight() const;
    void setNotesHeight(double height);
    bool isBlanked() const { return m_isBlanked; }
    void setBlanked(bool blanked);
    const QString &elapsedText() const { return m_elapsedText; }

    /// Goes so many slides on. Beyond either end nothing happens.
    Q_INVOKABLE void advance(int delta);
    Q_INVOKABLE void showFirst();
    Q_INVOKABLE void showLast();
    /// Lets the timer begin anew.
    Q_INVOKABLE void restartTimer();
    Q_INVOKABLE void close();
    /// The size of the slide between the bars and above the notes.
    /// @param notesHeight of the panel of notes; negative while it is closed
    Q_INVOKABLE static QSizeF fittedSize(QSizeF size, double notesHeight);
    /// The time between the two as minutes and seconds; minutes go on beyond an hour.
    static QString timerText(Timestamp from, Timestamp to);

signals:
    void isPresentingChanged();
    void slideChanged();
    void notesHeightChanged();
    void blankedChanged();
    void elapsedTextChanged();

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;

private:
    ShownSlide slide(int index) const;
    void goTo(int index);
    void showElapsed();

    std::optional<Deck> m_deck;
    int m_index = 0;
    bool m_isBlanked = false;
    Timestamp m_startedAt;
    QString m_elapsedText;
    QTimer m_seconds;
};
