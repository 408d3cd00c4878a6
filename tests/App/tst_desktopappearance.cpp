#include "App/DesktopAppearance.h"

#include <QDBusVariant>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

class DesktopAppearanceTest : public QObject
{
    Q_OBJECT

private slots:
    void readsThePortal()
    {
        // The portal wraps its value once or twice, depending on its version.
        const auto wrapped = [](uint value) {
            return QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(value))));
        };
        QCOMPARE(DesktopAppearance::preference(wrapped(1)), true);
        QCOMPARE(DesktopAppearance::preference(wrapped(2)), false);
        QCOMPARE(DesktopAppearance::preference(wrapped(0)), std::nullopt);
        QCOMPARE(DesktopAppearance::preference(QVariant(1U)), true);
        QCOMPARE(DesktopAppearance::preference(QVariant()), std::nullopt);
    }

    void followsThePaletteWithoutAPortal()
    {
        const QPalette before = QGuiApplication::palette();
        DesktopAppearance desktop;
        QSignalSpy changed(&desktop, &DesktopAppearance::darkChanged);
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        QGuiApplication::setPalette(dark);
        QTRY_VERIFY(desktop.isDark());
        QCOMPARE(changed.count(), 1);
        QGuiApplication::setPalette(before);
        QTRY_VERIFY(!desktop.isDark());
        QCOMPARE(changed.count(), 2);
    }
};

QTEST_MAIN(DesktopAppearanceTest)
#include "tst_desktopappearance.moc"
