#include "Harness/AssistiveClient.h"
#include "Store/SampleSnapshot.h"
#include "Store/SnapshotCodec.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// The gallery and the program as a screen reader meets them: on the accessibility bus, which is there before
/// anything is shown.
class AssistiveTechnologyTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<AssistiveClient> m_client;

    bool press(const QString &text) const
    {
        const QString path = m_client->waitFor(text);
        return !path.isEmpty() && m_client->press(path);
    }
    QString missing(const QStringList &expected) const
    {
        const QStringList seen = m_client->texts();
        QStringList missing;
        std::ranges::remove_copy_if(expected, std::back_inserter(missing),
                                    [&](const QString &text) { return seen.contains(text); });
        return missing.join(u"; ");
    }
    bool startProgram() const
    {
        return m_client->start(QStringLiteral(ORVEL_PROGRAM), [](const QString &data) {
            QDir(data).mkpath(u"Orvel"_s);
            QFile file(data + u"/Orvel/workspace.json"_s);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(SnapshotCodec::encode(workspace()));
        });
    }
    /// The sample, with a page of every kind of block and a table.
    static Snapshot workspace()
    {
        Snapshot sample = SampleSnapshot::make();
        Page page{.id = SampleSnapshot::id(30), .title = u"Kinds"_s, .isFavorite = true};
        for (const auto &kind : enumCases<BlockType>())
            page.content.append({.id = QUuid::createUuid(), .type = kind.value, .text = u"words"_s});
        sample.list<Page>().append(page);
        sample.list<DatabaseTable>()[0].views.prepend(
            {.id = SampleSnapshot::id(31), .name = u"All"_s, .type = DBViewType::table});
        return sample;
    }
    /// Waits until all of these are shown; returns what is not, and what is shown instead.
    QByteArray waitForAll(const QStringList &expected) const
    {
        QString lacking;
        if (QTest::qWaitFor([&] { return (lacking = missing(expected)).isEmpty(); }, 15'000))
            return {};
        return QStringLiteral("%1 in %2").arg(lacking, m_client->texts().join(u"; "_s)).toUtf8();
    }

private slots:
    void initTestCase()
    {
        m_client = std::make_unique<AssistiveClient>();
        if (!m_client->missing().isEmpty())
            QSKIP(qPrintable(m_client->missing()));
    }
    void cleanupTestCase() { m_client.reset(); }

    void everyComponentSaysWhatItIs()
    {
        QVERIFY(m_client->start(QStringLiteral(GALLERY_PROBE)));
        QVERIFY(!m_client->waitFor(u"heading Gallery"_s).isEmpty());
        const QStringList expected{u"heading Buttons and chips"_s,
                                   u"push button Add"_s,
                                   u"push button Disabled disabled"_s,
                                   u"push button Favourite checked"_s,
                                   u"check box All checked"_s,
                                   u"check box Upcoming disabled"_s,
                                   u"text New task"_s,
                                   u"text Search"_s,
                                   u"text Notes"_s,
                                   u"check box Off"_s,
                                   u"check box Not yet"_s,
                                   u"check box Done checked"_s,
                                   u"page tab list Priority"_s,
                                   u"page tab medium selected"_s,
                                   u"page tab high"_s,
                                   u"combo box Kind"_s,
                                   u"slider Volume"_s,
                                   u"radio button #2E6BE6"_s,
                                   u"push button Due: Nov 18, 2026"_s,
                                   u"table Wednesday, 18 November 2026"_s,
                                   u"spin box Hours"_s,
                                   u"menu bar Menu bar"_s,
                                   u"menu item File"_s,
                                   u"menu item Rename disabled"_s,
                                   u"menu item Pinned checked"_s,
                                   u"button menu Page menu"_s,
                                   u"panel Sessions today, 4"_s,
                                   u"progress bar Done"_s};
        QCOMPARE(missing(expected), QString());
        const QList<AssistiveClient::Seen> all = m_client->all();
        for (const AssistiveClient::Seen &seen : all)
            if (m_client->actions(seen.path).contains(u"Press"_s))
                QVERIFY2(!seen.text.endsWith(u"button "_s), "a button has no name");
    }

    void pressActs()
    {
        QVERIFY(press(u"check box Not yet"_s));
        QVERIFY(!m_client->waitFor(u"check box Not yet checked"_s).isEmpty());
        QVERIFY(press(u"page tab high"_s));
        QVERIFY(!m_client->waitFor(u"page tab high selected"_s).isEmpty());
        QVERIFY(press(u"radio button #D6336C"_s));
        QVERIFY(!m_client->waitFor(u"radio button #D6336C checked"_s).isEmpty());
        // What offers itself for a moment.
        QVERIFY(press(u"push button Toast with an action"_s));
        QVERIFY(press(u"push button Undo"_s));
        QVERIFY(
            QTest::qWaitFor([this] { return !m_client->texts().contains(u"push button Undo"_s); }, 15'000));
        // What opens, one after the other: each says its name.
        QVERIFY(press(u"button menu Page menu"_s));
        QVERIFY(!m_client->waitFor(u"menu item Move to folder"_s).isEmpty());
        QVERIFY(press(u"push button Due: Nov 18, 2026"_s));
        QVERIFY(!m_client->waitFor(u"push button Thursday, 19 November 2026"_s).isEmpty());
    }

    /// A press on the place in the sidebar leads there.
    void everyRowSaysWhatItIs_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const QString &place, const QStringList &rows) {
            QTest::newRow(qPrintable(place)) << place << rows;
        };
        add(u"Dashboard"_s, {u"list item Dashboard selected"_s, u"heading Workspaces"_s, u"list item Work"_s,
                             u"button menu Workspace menu, My Workspace"_s, u"push button Open tasks, 1"_s});
        add(u"Focus"_s, {u"progress bar 25:00, Ready"_s, u"radio button 25 min checked"_s});
        add(u"Tasks, 1"_s,
            {u"list item Bare"_s, u"push button Status: To do, Bare"_s, u"push button No due date, Bare"_s,
             u"list item Letter, Mar 5"_s, u"radio button All checked"_s});
        add(u"Calendar"_s, {u"radio button month checked"_s, u"text Event title"_s});
        add(u"Projects"_s, {u"push button Use template: Book"_s});
        add(u"Notes"_s, {u"push button Tabs and \"quotes\" \\ /, Line break, Mar 4, 2026"_s});
        add(u"Databases"_s, {u"list item Sources"_s, u"button menu New database"_s});
        add(u"Code"_s, {u"list item hello, Python · 2 lines selected"_s, u"text Source of hello"_s});
        add(u"Decks"_s, {u"list item Untitled, 1 slide · Studio selected"_s,
                         u"list item Slide 1: 72 | Rate selected"_s, u"canvas Slide"_s});
        add(u"Habits"_s, {u"list item Read, 0/5 this week"_s, u"push button Mark done: Read"_s});
        add(u"Insights"_s, {u"chart Task status"_s, u"list item Done, 1"_s});
        add(u"Reader"_s, {u"list item P & P, Austen, Jane selected"_s, u"radio button Library checked"_s});
        add(u"Kinds"_s,
            {u"text Title"_s, u"push button Favorite checked"_s, u"list item Text"_s, u"text Text"_s,
             u"list item Heading 1"_s, u"text Numbered list"_s, u"check box words"_s, u"text Quote"_s,
             u"button menu Tone: info"_s, u"button menu Language: Swift"_s, u"push button Run code"_s,
             u"text Code"_s, u"separator Divider"_s, u"push button Add a block"_s});
    }
    void everyRowSaysWhatItIs()
    {
        QFETCH(QString, place);
        QFETCH(QStringList, rows);
        if (place == u"Dashboard"_s) {
            QVERIFY(startProgram());
            QVERIFY(!m_client->waitFor(u"list item Dashboard selected"_s).isEmpty());
        } else {
            QVERIFY(press(u"list item "_s + place));
        }
        const QByteArray lacking = waitForAll(rows);
        QVERIFY2(lacking.isEmpty(), lacking.constData());
        // What a row is made of is not told beside it once more.
        QVERIFY(!m_client->texts().contains(u"label "_s + place));
    }

    void pressingARowActs()
    {
        QVERIFY(press(u"list item Tasks, 1"_s));
        QVERIFY(press(u"push button Status: To do, Bare"_s));
        QVERIFY(!m_client->waitFor(u"push button Status: In progress, Bare"_s).isEmpty());
        QVERIFY(press(u"list item Habits"_s));
        QVERIFY(press(u"push button Mark done: Read"_s));
        QVERIFY(!m_client->waitFor(u"panel Done today, 1/1"_s).isEmpty());
        QVERIFY(press(u"list item Databases"_s));
        QVERIFY(press(u"list item Sources"_s));
        const QByteArray lacking = waitForAll({u"list item Sources selected"_s, u"page tab All selected"_s,
                                               u"button menu State"_s, u"cell State: Done"_s});
        QVERIFY2(lacking.isEmpty(), lacking.constData());
        QVERIFY(press(u"page tab By day"_s));
        QVERIFY(!m_client->waitFor(u"page tab By day selected"_s).isEmpty());
        QVERIFY(press(u"page tab All"_s));
        QVERIFY(!m_client->waitFor(u"page tab All selected"_s).isEmpty());
        QVERIFY(press(u"push button New record"_s));
        QVERIFY(!m_client->waitFor(u"label 2 records"_s).isEmpty());
    }

    void pressingInTheSettingsActs()
    {
        QVERIFY(press(u"push button Settings"_s));
        const QByteArray lacking =
            waitForAll({u"list Sections"_s, u"list item Themes selected"_s, u"heading Themes"_s,
                        u"radio button Ember checked"_s, u"panel Accent"_s, u"radio button Mist checked"_s});
        QVERIFY2(lacking.isEmpty(), lacking.constData());
        QVERIFY(press(u"radio button Teal"_s));
        QVERIFY(!m_client->waitFor(u"radio button Teal checked"_s).isEmpty());
        QVERIFY(press(u"list item Navigation modules"_s));
        QVERIFY(press(u"check box Reader checked"_s));
        QVERIFY(!m_client->waitFor(u"check box Reader"_s).isEmpty());
    }

    void pressingInThePaletteActs()
    {
        QVERIFY(press(u"list item Search, Ctrl K"_s));
        const QByteArray lacking = waitForAll({u"dialog Command palette"_s, u"list Results"_s,
                                               u"heading QUICK LINKS"_s, u"list item Calendar"_s});
        QVERIFY2(lacking.isEmpty(), lacking.constData());
        // The sidebar behind it has a row of this name, too.
        const QList<AssistiveClient::Seen> all = m_client->all();
        const auto row = std::find_if(all.rbegin(), all.rend(), [](const AssistiveClient::Seen &seen) {
            return seen.text == u"list item Habits"_s;
        });
        QVERIFY(row != all.rend() && m_client->press(row->path));
        QVERIFY(!m_client->waitFor(u"list item Habits selected"_s).isEmpty());
        QVERIFY(QTest::qWaitFor([this] { return !m_client->texts().contains(u"dialog Command palette"_s); },
                                15'000));
    }
};

QTEST_GUILESS_MAIN(AssistiveTechnologyTest)
#include "tst_assistivetechnology.moc"
