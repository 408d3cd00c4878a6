#include "Features/Palette/ShortcutsViewModel.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class ShortcutsViewModelTest : public QObject
{
    Q_OBJECT

private:
    ShortcutsViewModel m_model;

    /// The groups as "Title: title, title".
    QStringList groups() const
    {
        QStringList lines;
        for (const ShortcutRowGroup &group : m_model.groups()) {
            QStringList titles;
            for (const ShortcutRow &row : group.rows)
                titles.append(row.title);
            lines.append(group.title + u": "_s + titles.join(u", "_s));
        }
        return lines;
    }
    QStringList groups(const QString &query)
    {
        m_model.setQuery(query);
        return groups();
    }

private slots:
    void allByCategoryWithTheKeysOfThisMachine()
    {
        QCOMPARE(
            groups(u" "_s),
            (QStringList{u"General: Command palette, Open settings, Keyboard shortcuts, Toggle sidebar, "
                         "Cycle theme accent, Cycle light / dark"_s,
                         u"Navigate: Dashboard, Today, Focus, Tasks, Calendar, Projects, Notes, Databases, "
                         "Habits, Insights, Relax"_s,
                         u"Create: New page, New note, New task"_s,
                         u"View: Cycle navigation style, Shuffle daily quote"_s}));
        const ShortcutRow sidebar = m_model.groups().first().rows.at(3);
        QCOMPARE(sidebar.caps, (QStringList{u"Ctrl"_s, u"Shift"_s, u"S"_s}));
        QCOMPARE(sidebar.keys, u"Ctrl Shift S"_s);
    }

    void isFoundByTitleAndByKeys_data()
    {
        QTest::addColumn<QStringList>("queries");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("title") << QStringList{u"new"_s, u" NEW "_s}
                               << QStringList{u"Create: New page, New note, New task"_s};
        QTest::newRow("key by sign") << QStringList{u"⌘k"_s} << QStringList{u"General: Command palette"_s};
        QTest::newRow("key") << QStringList{u"ctrl k"_s, u"Ctrl+K"_s, u"k ctrl"_s}
                             << QStringList{u"General: Command palette"_s, u"Create: New task"_s};
        QTest::newRow("shifted") << QStringList{u"⌘⇧"_s, u"ctrl shift"_s, u"Shift"_s, u"ctrl+sh"_s}
                                 << QStringList{
                                        u"General: Toggle sidebar, Cycle theme accent, Cycle light / dark"_s,
                                        u"Navigate: Habits, Insights, Relax"_s,
                                        u"Create: New note, New task"_s,
                                        u"View: Cycle navigation style, Shuffle daily quote"_s};
        QTest::newRow("sign") << QStringList{u"⌘/"_s, u"ctrl+/"_s}
                              << QStringList{u"General: Keyboard shortcuts"_s};
        QTest::newRow("letter within the name of a key")
            << QStringList{u"ctrl t"_s} << QStringList{u"General: Cycle theme accent"_s};
        QTest::newRow("letter that also begins the name of another key")
            << QStringList{u"ctrl shift s"_s, u"S+Shift+Ctrl"_s} << QStringList{u"General: Toggle sidebar"_s};
        QTest::newRow("none") << QStringList{u"ctrl x"_s, u"ctrl ctrl"_s, u"nothing like it"_s, u"+"_s}
                              << QStringList();
    }
    void isFoundByTitleAndByKeys()
    {
        QFETCH(const QStringList, queries);
        QFETCH(const QStringList, found);
        for (const QString &query : queries)
            QCOMPARE(groups(query), found);
    }

    void onlyRealChangesAreTold()
    {
        m_model.setQuery(u"new"_s);
        const QSignalSpy changed(&m_model, &ShortcutsViewModel::groupsChanged);
        m_model.setQuery(u"new "_s);
        QCOMPARE(changed.count(), 0);
        m_model.setQuery(u"new p"_s);
        QCOMPARE(changed.count(), 1);
    }
};

QTEST_GUILESS_MAIN(ShortcutsViewModelTest)
#include "tst_shortcutsviewmodel.moc"
