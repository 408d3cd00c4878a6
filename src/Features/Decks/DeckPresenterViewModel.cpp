#include "Features/Decks/DeckPresenterViewModel.h"

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace
{
/// What the bars above and below the slide take.
constexpr double barsHeight = 120;
/// What the panel of notes takes beside the notes themselves.
constexpr double notesFrame = 90;
constexpr double leastSlideHeight = 160;
constexpr double ordinaryNotesHeight = 130;
constexpr double leastNotesHeight = 48;

const QString &notesHeightKey()
{
    static const QString key = QStringLiteral("orvel.presenter.notesHeight");
    return key;
}
constexpr double slideRatio = 16.0 / 9;
} // namespace

DeckPresenterViewModel::DeckPresenterViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Deck>();
    m_seconds.setInterval(250ms);
    connect(&m_seconds, &QTimer::timeout, this, &DeckPresenterViewModel::showElapsed);
}

void DeckPresenterViewModel::start()
{
    connect(&ui(), &UIState::presentingDeckIDChanged, this, [this] {
        requestRefresh();
        flush();
    });
    connect(&session()->preferences(), &Preferences::changed, this, [this](const QString &key) {
        if (key == notesHeightKey())
            emit notesHeightChanged();
    });
    emit notesHeightChanged();
}

void DeckPresenterViewModel::refresh(const ChangeSet &)
{
    const Deck *const deck = store().list<Deck>().first(ui().presentingDeckID());
    // A presentation goes on with what it began with.
    if (deck && m_deck && deck->id == m_deck->id)
        return;
    if (!deck && !m_deck)
        return;
    m_deck = deck ? std::optional(*deck) : std::nullopt;
    m_index = 0;
    m_seconds.stop();
    if (m_deck) {
        m_seconds.start();
        restartTimer();
    }
    setBlanked(false);
    emit slideChanged();
    emit isPresentingChanged();
}

ShownSlide DeckPresenterViewModel::slide(int index) const
{
    return index < count() ? ShownSlide::of(*m_deck, index) : ShownSlide();
}

QString DeckPresenterViewModel::positionText() const
{
    return hasSlide() ? tr("%1 / %2").arg(m_index + 1).arg(count()) : tr("No slides");
}

QString DeckPresenterViewModel::notesText() const
{
    return hasSlide() ? m_deck->slides[m_index].notes.trimmed() : QString();
}

double DeckPresenterViewModel::notesHeight() const
{
    if (!session())
        return ordinaryNotesHeight;
    const double height = session()->preferences().value(notesHeightKey(), ordinaryNotesHeight).toDouble();
    return height >= leastNotesHeight ? height : ordinaryNotesHeight;
}

void DeckPresenterViewModel::setNotesHeight(double height)
{
    session()->preferences().setValue(notesHeightKey(), std::max(leastNotesHeight, std::round(height)));
}

void DeckPresenterViewModel::setBlanked(bool blanked)
{
    if (std::exchange(m_isBlanked, blanked) != blanked)
        emit blankedChanged();
}

void DeckPresenterViewModel::advance(int delta)
{
    if (m_index + delta >= 0 && m_index + delta < count())
        goTo(m_index + delta);
}

void DeckPresenterViewModel::showFirst()
{
    goTo(0);
}

void DeckPresenterViewModel::showLast()
{
    goTo(std::max(0, count() - 1));
}

void DeckPresenterViewModel::goTo(int index)
{
    if (std::exchange(m_index, index) != index)
        emit slideChanged();
}

void DeckPresenterViewModel::restartTimer()
{
    m_startedAt = clock().now();
    showElapsed();
}

void DeckPresenterViewModel::close()
{
    ui().setPresentingDeckID(QUuid());
}

void DeckPresenterViewModel::showElapsed()
{
    const QString text = timerText(m_startedAt, clock().now());
    if (std::exchange(m_elapsedText, text) != text)
        emit elapsedTextChanged();
}

QSizeF DeckPresenterViewModel::fittedSize(QSizeF size, double notesHeight)
{
    const double notes = notesHeight < 0 ? 0 : notesHeight + notesFrame;
    const double height = std::max(leastSlideHeight, size.height() - barsHeight - notes);
    const double naturalHeight = size.width() / slideRatio;
    return height < naturalHeight ? QSizeF(height * slideRatio, height) : QSizeF(size.width(), naturalHeight);
}

QString DeckPresenterViewModel::timerText(Timestamp from, Timestamp to)
{
    const auto seconds =
        std::max<qint64>(0, std::chrono::duration_cast<std::chrono::seconds>(to - from).count());
    return QStringLiteral("%1:%2")
        .arg(seconds / 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}
