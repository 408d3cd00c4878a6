#include "App/WindowPlacement.h"

#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class WindowPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void fitsTheScreensThereAre_data()
    {
        QTest::addColumn<QRect>("remembered");
        QTest::addColumn<QRect>("expected");
        const QRect stays(100, 50, 1240, 820);
        QTest::newRow("on the first screen") << stays << stays;
        const QRect second(2000, 100, 900, 600);
        QTest::newRow("on the second screen") << second << second;
        const QRect across(1500, 100, 1240, 820);
        QTest::newRow("across two screens") << across << across;
        QTest::newRow("smaller than the minimum") << QRect(0, 0, 100, 100) << QRect(0, 0, 720, 480);
        QTest::newRow("on a screen that is gone") << QRect(5000, 0, 1240, 820) << QRect(340, 130, 1240, 820);
        QTest::newRow("only a corner shows") << QRect(-1200, -780, 1240, 820) << QRect(340, 130, 1240, 820);
        QTest::newRow("title bar above the screen")
            << QRect(0, -200, 1240, 820) << QRect(340, 130, 1240, 820);
        QTest::newRow("gone and too large") << QRect(9000, 0, 4000, 3000) << QRect(0, 0, 1920, 1080);
    }
    void fitsTheScreensThereAre()
    {
        QFETCH(const QRect, remembered);
        QFETCH(const QRect, expected);
        const QList<QRect> screens{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
        QCOMPARE(WindowPlacement::fitted(remembered, screens, {720, 480}), expected);
    }

    void comesBackAtTheNextLaunch()
    {
        const QTemporaryDir folder;
        const auto open = [&](QQuickWindow &window, WindowPlacement &placement) {
            window.setMinimumSize({300, 200});
            placement.setProperty("settingsPath", folder.filePath(u"window.ini"_s));
            placement.setWindow(&window);
            placement.restore();
        };
        {
            QQuickWindow window;
            WindowPlacement placement;
            open(window, placement);
            window.setGeometry(20, 40, 500, 300);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            const QSignalSpy resized(&window, &QWindow::widthChanged);
            window.setGeometry(30, 50, 520, 310);
            QTRY_COMPARE(resized.count(), 1);
            QCoreApplication::processEvents();
            window.showMaximized();
            QTRY_COMPARE(window.windowState(), Qt::WindowMaximized);
            QCoreApplication::processEvents();
            window.close();
            placement.save();
        }
        QQuickWindow window;
        WindowPlacement placement;
        open(window, placement);
        QCOMPARE(window.geometry(), QRect(30, 50, 520, 310));
        QCOMPARE(window.windowState(), Qt::WindowMaximized);
    }

    void aFirstLaunchAndABrokenFileLeaveTheWindowAsItIs()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"window.ini"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[window]\ngeometry=@Rect(a b\n");
        file.close();
        for (const QString &path : {file.fileName(), folder.filePath(u"missing.ini"_s)}) {
            QQuickWindow window;
            window.setGeometry(10, 20, 300, 200);
            WindowPlacement placement;
            placement.setProperty("settingsPath", path);
            placement.setWindow(&window);
            placement.restore();
            QCOMPARE(window.geometry(), QRect(10, 20, 300, 200));
        }
        QVERIFY(!QFile::exists(folder.filePath(u"missing.ini"_s)));
    }
};

QTEST_MAIN(WindowPlacementTest)
#include "tst_windowplacement.moc"
