#include "Harness/Comparison.h"
#include "Harness/Desk.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <QThread>

#include <cstdio>
#include <optional>

namespace
{
constexpr QSize displaySize(1920, 1080);
constexpr Comparison::Duration frame(1000.0 / 60);
constexpr int framesOfTransition = 20;

Snapshot workspace()
{
    Deck deck = Deck::fresh(Timestamp(), QUuid::createUuid());
    deck.title = QStringLiteral("A year in review");
    deck.theme = SlideTheme::catalog().at(3);
    for (int i = 0; i < 300; ++i) {
        Slide slide = Slide::fresh(QUuid::createUuid());
        slide.kind = enumCases<SlideKind>()[std::size_t(i) % enumCases<SlideKind>().size()].value;
        slide.title = QStringLiteral("What we learned about steady work");
        slide.subtitle = QStringLiteral("One line that says why");
        slide.body = QStringLiteral("72 | First of several points\nSecond, with a little more to say\nThird");
        slide.notes = QStringLiteral("Pause here.");
        deck.slides.append(slide);
    }
    Snapshot snapshot;
    snapshot.list<Deck>() = {deck};
    return snapshot;
}

/// A talk over a whole display.
class Talk
{
public:
    Talk()
    {
        m_desk.provideTo(*m_view.engine());
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.resize(displaySize);
        auto *const component = new QQmlComponent(m_view.engine(), &m_view);
        component->setData("import QtQuick\nimport Orvel.Decks\n"
                           "Item { DeckPresenterLayer { anchors.fill: parent } }",
                           QUrl());
        m_view.setContent(QUrl(), component, component->create());
        m_view.show();
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(&m_view, &focus);
        draw();
    }

    Comparison::Duration open()
    {
        m_desk.ui.setPresentingDeckID({});
        QCoreApplication::processEvents();
        return timed([this] {
            m_desk.ui.setPresentingDeckID(m_desk.store->list<Deck>().at(0).id);
            draw();
        });
    }

    /// To the end of the first frame.
    Comparison::Duration press(int key)
    {
        return timed([&] {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&m_view, &event);
            draw();
        });
    }

    /// When it is time for the next frame, draws what has moved; nothing if nothing has.
    std::optional<Comparison::Duration> nextFrame()
    {
        const QImage before = m_picture.copy();
        QThread::msleep(16);
        const Comparison::Duration time = timed([this] {
            QCoreApplication::processEvents();
            draw();
        });
        return m_picture == before ? std::nullopt : std::optional(time);
    }

private:
    void draw() { m_picture = m_view.grabWindow(); }

    Desk m_desk{workspace()};
    QQuickView m_view;
    QImage m_picture;
};

/// One picture over another, half of it seen.
Comparison::Duration blend()
{
    static QImage stage(displaySize, QImage::Format_ARGB32_Premultiplied);
    static const QImage slide = [] {
        QImage image(QSize(1706, 960), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        return image;
    }();
    return timed([] {
        QPainter painter(&stage);
        painter.drawImage(100, 0, slide);
        painter.setOpacity(0.5);
        painter.drawImage(110, 0, slide);
    });
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    Talk talk;
    Comparison comparison;

    const auto opened = Comparison::alternate(10, [&] { return talk.open(); }, blend);
    comparison.timeUnder(QStringLiteral("the presenter opens, beside two pictures drawn, half of all"),
                         Comparison::quantile(opened.ours, 0.5), Comparison::quantile(opened.baseline, 0.5),
                         frame);

    QList<Comparison::Duration> moving;
    const auto next = Comparison::alternate(
        60,
        [&] {
            const Comparison::Duration first = talk.press(Qt::Key_Right);
            for (int i = 0; i < framesOfTransition; ++i)
                if (const auto time = talk.nextFrame())
                    moving.append(*time);
            return first;
        },
        blend);
    comparison.timeUnder(QStringLiteral("next slide in the presenter, beside two pictures drawn, 95 of 100"),
                         Comparison::quantile(next.ours, 0.95), Comparison::quantile(next.baseline, 0.95),
                         frame);
    if (moving.size() < 2 * next.ours.size()) {
        std::fprintf(stderr, "bench_presenter: the slides have not moved\n");
        return 2;
    }
    comparison.timeUnder(QStringLiteral("a frame of its transition, beside two pictures drawn, 95 of 100"),
                         Comparison::quantile(moving, 0.95), Comparison::quantile(next.baseline, 0.95),
                         frame);
    return comparison.exitCode();
}
