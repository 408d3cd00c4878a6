#pragma once

#include "App/OrvelCommands.h"
#include "Harness/RandomOperations.h"
#include "Harness/TestWorkspace.h"

#include <QClipboard>
#include <QMimeData>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <random>

/// Does what a user may do to a window, at random and without regard to what it shows.
class SoakActions
{
public:
    SoakActions(TestWorkspace &workspace, QQuickWindow &window, unsigned seed)
        : m_workspace(workspace),
          m_window(window),
          m_operations(workspace.store(), workspace.clock(), seed),
          m_random(seed)
    {
    }

    /// Does the next thing and tells what it was.
    QString act()
    {
        using Act = QString (SoakActions::*)();
        static const std::array<std::pair<int, Act>, 14> acts{{
            {14, &SoakActions::pressKey},
            {12, &SoakActions::type},
            {8, &SoakActions::command},
            {8, &SoakActions::go},
            {18, &SoakActions::clickControl},
            {6, &SoakActions::clickAnywhere},
            {4, &SoakActions::drag},
            {4, &SoakActions::wheel},
            {3, &SoakActions::paste},
            {6, &SoakActions::undoOrRedo},
            {6, &SoakActions::operate},
            {3, &SoakActions::passTime},
            {3, &SoakActions::changeSettings},
            {2, &SoakActions::resize},
        }};
        int choice = below(97);
        for (const auto &[weight, act] : acts) {
            if (choice < weight)
                return (this->*act)();
            choice -= weight;
        }
        return {};
    }

private:
    int below(qsizetype count) { return count < 1 ? 0 : int(m_random() % unsigned(count)); }
    template <typename List>
    auto any(const List &list)
    {
        return list[decltype(list.size())(below(qsizetype(list.size())))];
    }
    QPoint anyPoint() { return {below(m_window.width()), below(m_window.height())}; }
    Qt::KeyboardModifiers anyModifiers()
    {
        static const QList<Qt::KeyboardModifiers> all{{},
                                                      {},
                                                      {},
                                                      Qt::ShiftModifier,
                                                      Qt::ControlModifier,
                                                      Qt::ControlModifier | Qt::ShiftModifier,
                                                      Qt::AltModifier};
        return any(all);
    }

    QString pressKey()
    {
        static const QList<Qt::Key> keys{
            Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Up,     Qt::Key_Down,
            Qt::Key_Down,  Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Return, Qt::Key_Return,
            Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Escape,   Qt::Key_Space,  Qt::Key_Home,
            Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace,
            Qt::Key_F2,    Qt::Key_F3,     Qt::Key_F10,      Qt::Key_Menu,   Qt::Key_A,
            Qt::Key_C,     Qt::Key_V,      Qt::Key_X,        Qt::Key_D,      Qt::Key_Slash};
        const Qt::Key key = any(keys);
        const Qt::KeyboardModifiers modifiers = anyModifiers();
        const int times = below(4) ? 1 : 1 + below(12);
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&m_window, key, modifiers);
        return QStringLiteral("key %1, %2 times")
            .arg(QKeySequence(QKeyCombination(modifiers, key)).toString())
            .arg(times);
    }

    QString type()
    {
        // Nothing that an interpreter would take for a command with consequences.
        static const QStringList texts{QStringLiteral("a"),
                                       QStringLiteral("Tea and bread"),
                                       QStringLiteral("/"),
                                       QStringLiteral("/head"),
                                       QStringLiteral("# "),
                                       QStringLiteral("- "),
                                       QStringLiteral("[] "),
                                       QStringLiteral("``` "),
                                       QStringLiteral("1. "),
                                       QStringLiteral("12"),
                                       QStringLiteral("https://example.invalid "),
                                       QStringLiteral("print(1)"),
                                       QStringLiteral("  "),
                                       QStringLiteral("äöü"),
                                       QStringLiteral("😀👩‍👩‍👧"),
                                       QStringLiteral("مرحبا"),
                                       QStringLiteral("é")};
        const QString text = any(texts);
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, &m_window, Qt::Key_unknown, letter, {}, -1);
        return QStringLiteral("type ") + text;
    }

    QString command()
    {
        const OrvelCommand *const command = any(m_commands.commands());
        if (command->keys.isEmpty() || command->id == u"quit")
            return {};
        const QKeyCombination keys = QKeySequence(any(command->keys), QKeySequence::PortableText)[0];
        QTest::keyClick(&m_window, keys.key(), keys.keyboardModifiers());
        return QStringLiteral("command ") + command->id;
    }

    QString go()
    {
        const auto kind = any(EnumTable<Destination::Kind>::cases).value;
        const WorkspaceStore &store = m_workspace.store();
        const auto anyId = [this](const auto &list) {
            return list.isEmpty() ? QUuid() : list.at(below(list.size())).id;
        };
        Destination place{kind, {}};
        if (kind == Destination::Kind::page)
            place.id = anyId(store.list<Page>());
        else if (kind == Destination::Kind::project)
            place.id = anyId(store.list<Project>());
        else if (kind == Destination::Kind::codeDocument)
            place.id = anyId(store.list<CodeDocument>());
        else if (kind == Destination::Kind::deck)
            place.id = anyId(store.list<Deck>());
        m_workspace.ui().setSelection(place);
        return QStringLiteral("go to ") + place.text();
    }

    static QPointF centerOf(const QQuickItem &item) { return item.mapToScene(item.boundingRect().center()); }
    static void collect(QQuickItem *item, QList<QQuickItem *> &found)
    {
        if (!item->isVisible() || !item->isEnabled())
            return;
        if (item->acceptedMouseButtons() != Qt::NoButton || item->activeFocusOnTab())
            found.append(item);
        for (QQuickItem *const child : item->childItems())
            collect(child, found);
    }
    QString clickControl()
    {
        QList<QQuickItem *> controls;
        collect(m_window.contentItem(), controls);
        if (controls.isEmpty())
            return {};
        const QQuickItem *const control = any(controls);
        const QPoint place = centerOf(*control).toPoint();
        return QStringLiteral("%1 on %2")
            .arg(click(place), QLatin1String(control->metaObject()->className()));
    }
    QString clickAnywhere() { return click(anyPoint()); }
    QString click(QPoint place)
    {
        static const QList<Qt::MouseButton> buttons{Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                                    Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
        const Qt::MouseButton button = any(buttons);
        const bool isDouble = below(8) == 0;
        // The window may be smaller meanwhile than its content.
        if (!QRect({}, m_window.size()).contains(place))
            return {};
        QTest::mouseMove(&m_window, place);
        if (isDouble)
            QTest::mouseDClick(&m_window, button, anyModifiers(), place);
        else
            QTest::mouseClick(&m_window, button, anyModifiers(), place);
        return QStringLiteral("%1 %2 at %3, %4")
            .arg(isDouble ? QStringLiteral("double click") : QStringLiteral("click"))
            .arg(int(button))
            .arg(place.x())
            .arg(place.y());
    }

    QString drag()
    {
        const QPoint from = anyPoint(), to = anyPoint();
        QTest::mousePress(&m_window, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 6; ++step) {
            QTest::mouseMove(&m_window, from + (to - from) * step / 6);
            QTest::qWait(1);
        }
        // What is dragged may be given up, or go while it is held.
        if (below(4) == 0)
            QTest::keyClick(&m_window, Qt::Key_Escape);
        if (below(6) == 0)
            m_operations.act();
        QTest::mouseRelease(&m_window, Qt::LeftButton, {}, to);
        return QStringLiteral("drag from %1, %2 to %3, %4")
            .arg(from.x())
            .arg(from.y())
            .arg(to.x())
            .arg(to.y());
    }

    QString wheel()
    {
        const QPoint place = anyPoint(), angle(below(5) ? 0 : 120 * (below(5) - 2), 120 * (below(21) - 10));
        QWheelEvent event(place, m_window.mapToGlobal(place), {}, angle, Qt::NoButton, anyModifiers(),
                          Qt::NoScrollPhase, false);
        QGuiApplication::sendEvent(&m_window, &event);
        return QStringLiteral("wheel %1").arg(angle.y());
    }

    QString paste()
    {
        QString text;
        switch (below(4)) {
        case 0:
            text = QStringLiteral("# Title\n\n- one\n- two\n\n```\ncode\n```\n\n> quote\n");
            break;
        case 1:
            text = QString(1 + below(200'000), u'x');
            break;
        case 2:
            for (int i = below(400); i > 0; --i)
                text += QStringLiteral("line %1 😀\n").arg(i);
            break;
        case 3:
            text = QStringLiteral("a\0b\u2028c\u202e\td");
            break;
        }
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&m_window, Qt::Key_V, Qt::ControlModifier);
        return QStringLiteral("paste %1 characters").arg(text.size());
    }

    QString undoOrRedo()
    {
        const bool undoes = below(3) > 0;
        const int times = below(4) ? 1 : 1 + below(10);
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&m_window, Qt::Key_Z,
                            undoes ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
        return QStringLiteral("%1, %2 times")
            .arg(undoes ? QStringLiteral("undo") : QStringLiteral("redo"))
            .arg(times);
    }

    QString operate()
    {
        m_operations.act();
        return QStringLiteral("an operation behind the window");
    }

    QString passTime()
    {
        const int minutes = below(3) ? below(30) : below(60 * 24 * 3);
        m_workspace.clock().advance(std::chrono::minutes(minutes));
        return QStringLiteral("%1 minutes pass").arg(minutes);
    }

    QString changeSettings()
    {
        if (below(12) == 0) {
            m_workspace.store().resetEverything(true);
            StarterContent::seed(m_workspace.store(), {OrvelModule::tasks, OrvelModule::projects}, true);
            return QStringLiteral("reset");
        }
        m_workspace.store().changeSettings([this](AppSettings &settings) {
            const auto choose = [this](auto &field) {
                field = any(EnumTable<std::remove_reference_t<decltype(field)>>::cases).value;
            };
            settings.hasCompletedOnboarding = true;
            choose(settings.appearance);
            choose(settings.theme.accent);
            choose(settings.theme.navigation);
            choose(settings.theme.canvas);
            choose(settings.theme.density);
            settings.theme.fontScale = 0.8 + below(8) / 10.0;
            settings.inkMode = below(4) == 0;
            settings.reducedMotion = below(2);
        });
        return QStringLiteral("change the settings");
    }

    QString resize()
    {
        m_window.resize(720 + below(700), 480 + below(500));
        return QStringLiteral("resize to %1 by %2").arg(m_window.width()).arg(m_window.height());
    }

    TestWorkspace &m_workspace;
    QQuickWindow &m_window;
    RandomOperations m_operations;
    std::mt19937 m_random;
    OrvelCommands m_commands;
};
