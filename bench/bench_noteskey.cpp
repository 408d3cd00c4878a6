#include "Harness/Comparison.h"
#include "Harness/Desk.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

#include <cstdio>

namespace
{
constexpr int noteCount = 10'000;
constexpr int fewNotes = 10;
/// Typed letter by letter: it is in many notes, then in one of ten, and in the end in none.
constexpr char16_t typedText[] = u"harbour 7x";

Snapshot notes(int count)
{
    const QString text =
        QStringLiteral("The harbour wakes before the town does. Nets are mended on the quay. ");
    const QDateTime start = QDateTime::currentDateTimeUtc().addDays(-30);
    Snapshot workspace;
    for (int i = 0; i < count; ++i) {
        Page note;
        note.id = QUuid::createUuid();
        note.kind = PageKind::note;
        note.title = QStringLiteral("Note %1").arg(i);
        note.updatedDate = toTimestamp(start.addSecs(i));
        note.content.append({.id = QUuid::createUuid(), .text = text.repeated(1 + i % 8)});
        note.content.append(
            {.id = QUuid::createUuid(), .text = QStringLiteral("Seen from the harbour %1").arg(i % 10)});
        workspace.list<Page>().append(note);
    }
    return workspace;
}

/// The notes screen over a workspace, in a window that is never drawn.
class Scene
{
public:
    explicit Scene(const Snapshot &workspace) : m_desk(workspace)
    {
        m_desk.provideTo(m_engine);
        m_window.contentItem()->setSize({1240, 820});
        m_window.resize(1240, 820);
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(&m_window, &focus);
    }

    Comparison::Duration openNotes()
    {
        m_screen.reset();
        return timed([this] {
            QQmlComponent component(&m_engine);
            component.setData("import Orvel.Notes\nNotesView { focus: true }", QUrl());
            m_screen.reset(qobject_cast<QQuickItem *>(component.create()));
            m_screen->setParentItem(m_window.contentItem());
            m_screen->setSize({1240, 820});
            settle();
        });
    }

    /// To the moment when nothing is left to do but to draw.
    Comparison::Duration typeKey()
    {
        const QString text = QString::fromUtf16(typedText);
        if (m_typed == text.size()) {
            press(Qt::Key_Escape, {});
            settle();
            m_typed = 0;
        }
        const QChar letter = text[m_typed++];
        return timed([&] {
            press(letter.toUpper().unicode(), letter);
            settle();
        });
    }

    QString query() const
    {
        const QQuickItem *const field = m_window.activeFocusItem();
        return field ? field->property("text").toString() : QString();
    }

private:
    void press(int key, const QString &text)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(&m_window, &event);
        }
    }

    void settle()
    {
        QCoreApplication::processEvents();
        m_control.polishItems();
    }

    Desk m_desk;
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_screen;
    qsizetype m_typed = 0;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    Scene many(notes(noteCount));
    Scene few(notes(fewNotes));
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };

    Comparison comparison;
    const auto openings =
        Comparison::alternate(20, [&] { return many.openNotes(); }, [&] { return few.openNotes(); });
    comparison.timeUnder(QStringLiteral("open the notes screen, 10,000 notes against 10, half of the times"),
                         Comparison::quantile(openings.ours, 0.5),
                         Comparison::quantile(openings.baseline, 0.5), milliseconds(100));
    const auto keys =
        Comparison::alternate(300, [&] { return many.typeKey(); }, [&] { return few.typeKey(); });
    if (many.query().isEmpty() || !QString::fromUtf16(typedText).startsWith(many.query())) {
        std::fprintf(stderr, "bench_noteskey: the keys have not arrived\n");
        return 2;
    }
    for (const int share : {50, 95})
        comparison.timeUnder(
            QStringLiteral("key into the search of 10,000 notes, against 10, %1 of 100").arg(share),
            Comparison::quantile(keys.ours, share / 100.0),
            Comparison::quantile(keys.baseline, share / 100.0), milliseconds(8));
    return comparison.exitCode();
}
