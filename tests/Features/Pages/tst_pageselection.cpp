#include "Features/Pages/BlockClipboard.h"
#include "Features/Pages/BlockHtml.h"
#include "Features/Pages/PageEditorViewModel.h"
#include "Features/Pages/TextLinks.h"
#include "Harness/TestWorkspace.h"
#include "Store/SnapshotCodec.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace
{
QVariantMap block(const QString &text, const QString &type = u"paragraph"_s)
{
    return {{u"text"_s, text}, {u"type"_s, type}};
}

const QMimeData &clipboard()
{
    return *QGuiApplication::clipboard()->mimeData();
}

void copy(const QString &type, const QString &text)
{
    auto *const data = new QMimeData;
    data->setData(type, text.toUtf8());
    QGuiApplication::clipboard()->setMimeData(data);
}
} // namespace

/// Selected blocks and the clipboard, by what stands in the page afterwards.
class PageSelectionTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void extendsAndKeepsToItsBlocks();
    void changesAllAtOnce_data();
    void changesAllAtOnce();
    void neverEmptiesThePage();
    void copiesInThreeForms();
    void pastesWhatTheClipboardNames_data();
    void pastesWhatTheClipboardNames();
    void pastesBehindADivider();
    void readsHtmlFromElsewhere();
    void makesKindsOfTypedSigns_data();
    void makesKindsOfTypedSigns();
    void opensOnlySafeLinks_data();
    void opensOnlySafeLinks();
    void undoesRandomWalksByteForByte();
    void spansTenThousandBlocks();

private:
    void open(const QVariantList &blocks)
    {
        m_page = QUuid(m_workspace.addPageOf(blocks));
        m_workspace.ui().selectPage(m_page);
        m_model = std::make_unique<PageEditorViewModel>();
        m_model->setSession(&m_session);
        m_model->setPageID(m_page);
        QCoreApplication::sendPostedEvents();
    }
    const QList<Block> &content() { return m_workspace.store().pages().first(m_page)->content; }
    QUuid id(int index) { return content()[index].id; }
    PageSelection &selection() { return *m_model->selection(); }
    void select(int anchor, int focus) { selection().select(id(anchor), id(focus)); }
    /// "paragraph:one|code:two"
    QString described()
    {
        QCoreApplication::sendPostedEvents();
        QStringList texts;
        for (const Block &block : content())
            texts.append(enumRawText(block.type) + u':' + block.text);
        return texts.join(u'|');
    }
    QByteArray encoded() { return SnapshotCodec::encode(m_workspace.store().snapshot()); }
    std::size_t steps() { return m_workspace.store().history().size(); }
    void act(int choice);

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    QUuid m_page;
    std::unique_ptr<PageEditorViewModel> m_model;
    std::mt19937 m_random{11};
};

void PageSelectionTest::init()
{
    m_model.reset();
    m_workspace.reset();
    m_session.undo()->endTyping();
}

void PageSelectionTest::extendsAndKeepsToItsBlocks()
{
    open({block(u"a"_s), block(u"b"_s), block(u"c"_s), block(u"d"_s)});
    QSignalSpy changes(&selection(), &PageSelection::changed);
    select(1, 1);
    QCOMPARE(selection().text(), u"1 block selected"_s);
    selection().extend(1);
    selection().extend(9);
    QCOMPARE(selection().first(), 1);
    QCOMPARE(selection().last(), 3);
    QCOMPARE(selection().focusRow(), 3);
    selection().extend(-3);
    QCOMPARE(selection().first(), 0);
    QCOMPARE(selection().focusRow(), 0);
    QCOMPARE(selection().text(), u"2 blocks selected"_s);
    QCOMPARE(changes.size(), 4);

    m_model->insertBlock(id(0));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(selection().last(), 2);
    m_model->deleteBlock(id(2));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!selection().isActive());
    QCOMPARE(selection().first(), -1);

    selection().selectAll();
    QCOMPARE(selection().last(), 3);
    m_model->blockFocused(id(0));
    QVERIFY(!selection().isActive());
}

void PageSelectionTest::changesAllAtOnce_data()
{
    QTest::addColumn<std::function<void(PageSelection &)>>("change");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("selected");
    const auto row = [](const char *name, const QString &after, const QString &selected,
                        std::function<void(PageSelection &)> change) {
        QTest::newRow(name) << std::move(change) << after << selected;
    };
    row("delete", u"paragraph:a|paragraph:d"_s, u""_s, &PageSelection::remove);
    row("cut", u"paragraph:a|paragraph:d"_s, u""_s, &PageSelection::cut);
    row("type over", u"paragraph:a|paragraph:x|paragraph:d"_s, u""_s,
        [](PageSelection &selection) { selection.typeOver(u"x"_s); });
    row("turn into", u"paragraph:a|heading1:b|heading1:c|paragraph:d"_s, u"b c"_s,
        [](PageSelection &selection) { selection.changeType(int(BlockType::heading1)); });
    row("up", u"checklist:b|quote:c|paragraph:a|paragraph:d"_s, u"b c"_s,
        [](PageSelection &selection) { selection.move(-1); });
    row("down", u"paragraph:a|paragraph:d|checklist:b|quote:c"_s, u"b c"_s,
        [](PageSelection &selection) { selection.move(1); });
    row("drag", u"paragraph:a|paragraph:d|checklist:b|quote:c"_s, u"b c"_s,
        [](PageSelection &selection) { selection.moveTo(4); });
    row("duplicate", u"paragraph:a|checklist:b|quote:c|checklist:b|quote:c|paragraph:d"_s, u"b c"_s,
        &PageSelection::duplicate);
}

void PageSelectionTest::changesAllAtOnce()
{
    QFETCH(std::function<void(PageSelection &)>, change);
    QFETCH(QString, selected);
    open({block(u"a"_s), block(u"b"_s, u"checklist"_s), block(u"c"_s, u"quote"_s), block(u"d"_s)});
    const QString before = described();
    const std::size_t done = steps();
    select(2, 1);
    change(selection());
    QTEST(described(), "after");
    QStringList texts;
    for (const Block &block : selection().blocks())
        texts.append(block.text);
    QCOMPARE(texts.join(u' '), selected);
    QCOMPARE(selection().isActive(), !selected.isEmpty());
    QCOMPARE(steps(), done + 1);
    m_session.undo()->undo();
    QCOMPARE(described(), before);
}

void PageSelectionTest::neverEmptiesThePage()
{
    open({block(u"a"_s, u"heading1"_s), block(u"b"_s)});
    QSignalSpy focus(m_model.get(), &PageEditorViewModel::focusRequested);
    selection().selectAll();
    selection().move(1);
    selection().moveTo(1);
    QCOMPARE(described(), u"heading1:a|paragraph:b"_s);
    selection().remove();
    QCOMPARE(described(), u"paragraph:"_s);
    QCOMPARE(focus.takeFirst()[0].toInt(), 0);
}

void PageSelectionTest::copiesInThreeForms()
{
    open({block(u"T"_s, u"heading1"_s), block(u"a & b"_s, u"bulleted"_s), block(u"x < 1"_s, u"code"_s),
          block(u"end"_s)});
    select(0, 2);
    selection().copy();
    QCOMPARE(QString::fromUtf8(clipboard().data(u"text/markdown"_s)),
             u"# T\n\n- a & b\n\n```swift\nx < 1\n```\n"_s);
    QCOMPARE(clipboard().text(), u"T\na & b\nx < 1"_s);
    QCOMPARE(clipboard().html(),
             u"<h1>T</h1>\n<ul>\n<li>a &amp; b</li>\n</ul>\n<pre><code class=\"language-swift\">"
             "x &lt; 1</code></pre>\n"_s);
    // Pasted over the last block they are what they were, under ids of their own.
    select(3, 3);
    selection().paste(false);
    QCOMPARE(described(), u"heading1:T|bulleted:a & b|code:x < 1|heading1:T|bulleted:a & b|code:x < 1"_s);
    QVERIFY(id(0) != id(3));
    select(3, 5);
    selection().paste(true);
    QCOMPARE(described(),
             u"heading1:T|bulleted:a & b|code:x < 1|paragraph:T|paragraph:a & b|paragraph:x < 1"_s);
}

void PageSelectionTest::pastesWhatTheClipboardNames_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("copied");
    QTest::addColumn<QString>("into");
    QTest::addColumn<QString>("after");
    const QString plain = u"text/plain"_s;
    QTest::newRow("blocks into a text") << plain << u"one\n\n# Two\n\n- three"_s << u"abcd"_s
                                        << u"heading2:abone|heading1:Two|bulleted:threecd"_s;
    QTest::newRow("a heading first") << plain << u"# One\n\ntwo"_s << u"abcd"_s
                                     << u"heading2:ab|heading1:One|paragraph:twocd"_s;
    QTest::newRow("code last") << plain << u"# One\n```py\nx\n```\n"_s << u"abcd"_s
                               << u"heading2:ab|heading1:One|code:x|paragraph:cd"_s;
    QTest::newRow("into an empty block") << plain << u"> q\n\n---\n"_s << u""_s << u"quote:q|divider:"_s;
    QTest::newRow("a divider") << plain << u"---"_s << u"abcd"_s << u"heading2:ab|divider:|paragraph:cd"_s;
    QTest::newRow("one line") << plain << u"- x"_s << u"abcd"_s << u"heading2:abxcd"_s;
    QTest::newRow("lines") << plain << u"x_y\n\n\nz\\*"_s << u"abcd"_s
                           << u"heading2:abx_y|paragraph:z\\*cd"_s;
    QTest::newRow("HTML") << u"text/html"_s << u"<p>one</p><ol><li>two</li></ol>"_s << u"abcd"_s
                          << u"heading2:abone|numbered:twocd"_s;
}

void PageSelectionTest::pastesWhatTheClipboardNames()
{
    QFETCH(QString, type);
    QFETCH(QString, copied);
    QFETCH(QString, into);
    open({block(into, u"heading2"_s)});
    copy(type, copied);
    const int middle = int(into.size()) / 2;
    QVERIFY(m_model->paste(id(0), middle, middle));
    QTEST(described(), "after");
    m_session.undo()->undo();
    QCOMPARE(described(), u"heading2:"_s + into);
}

/// A divider shows no text, so what is pasted there goes behind it.
void PageSelectionTest::pastesBehindADivider()
{
    open({block({}, u"divider"_s)});
    copy(u"text/plain"_s, u"sea\nsky"_s);
    QVERIFY(m_model->paste(id(0), 0, 0));
    QCOMPARE(described(), u"divider:|paragraph:sea|paragraph:sky"_s);
    m_session.undo()->undo();
    QCOMPARE(described(), u"divider:"_s);
}

void PageSelectionTest::readsHtmlFromElsewhere()
{
    const QList<Block> blocks = BlockHtml::read(
        u"<html><head><title>no</title><style>x</style></head><body><h4>Four</h4><p>a <b>b</b> <a "
        u"href=\"http://c\">c</a>"
        "<br>d</p><ul><li>e<ul><li>f</li></ul></li><li class=\"checked\">g</li><li>☐ "
        "h</li></ul><ol><li>i</li></ol>"
        "<blockquote>j</blockquote><pre>k\n\n\tl</pre><hr><table><tr><td>m</td><td>n</td></tr></table>"
        "<p>&nbsp;</p><img src=\"file:///etc/passwd\"><script>o</script></body></html>"_s);
    QStringList texts;
    for (const Block &block : blocks)
        texts.append(enumRawText(block.type) + (block.checked ? u"+:"_s : u":"_s) + block.text);
    QCOMPARE(texts.join(u'|'),
             u"heading3:Four|paragraph:a b c\nd|bulleted:e|bulleted:f|checklist+:g|checklist:h|"
             "numbered:i|quote:j|code:k\n\n\tl|divider:|paragraph:m | n"_s);
}

void PageSelectionTest::makesKindsOfTypedSigns_data()
{
    QTest::addColumn<QString>("signs");
    QTest::addColumn<QString>("after");
    for (const auto &[signs, after] :
         std::initializer_list<std::pair<QString, QString>>{{u"# "_s, u"heading1:"_s},
                                                            {u"## "_s, u"heading2:"_s},
                                                            {u"### "_s, u"heading3:"_s},
                                                            {u"- "_s, u"bulleted:"_s},
                                                            {u"* "_s, u"bulleted:"_s},
                                                            {u"1. "_s, u"numbered:"_s},
                                                            {u"[] "_s, u"checklist:"_s},
                                                            {u"> "_s, u"quote:"_s},
                                                            {u"``` "_s, u"code:"_s},
                                                            {u"---"_s, u"divider:|paragraph:"_s},
                                                            {u"a# "_s, u"paragraph:a# "_s},
                                                            {u"2. "_s, u"paragraph:2. "_s}})
        QTest::newRow(qPrintable(signs)) << signs << after;
}

void PageSelectionTest::makesKindsOfTypedSigns()
{
    QFETCH(QString, signs);
    QFETCH(QString, after);
    open({block(u""_s)});
    for (qsizetype length = 1; length <= signs.size(); ++length)
        m_model->setText(id(0), signs.first(length), int(length));
    QCOMPARE(described(), after);
    if (after.endsWith(signs))
        return;
    m_session.undo()->undo();
    QCOMPARE(described(), u"paragraph:"_s + signs);
    m_session.undo()->redo();
    QCOMPARE(described(), after);
    // What is pasted or stood there before is no typing.
    open({block(signs.chopped(1) + u"x"_s)});
    m_model->setText(id(0), signs, int(signs.size()));
    QCOMPARE(described(), u"paragraph:"_s + signs);
}

void PageSelectionTest::opensOnlySafeLinks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("links");
    const auto row = [](const QString &text, const QString &links) {
        QTest::newRow(qPrintable(text)) << text << links;
    };
    row(u"see https://a.example/b_(c)?d=1#e. And (http://f.example)!"_s,
        u"https://a.example/b_(c)?d=1#e http://f.example"_s);
    row(u"[text](https://a.example/b) <www.a.example>"_s, u"https://a.example/b https://www.a.example"_s);
    row(u"HTTPS://A.example, mailto:a@b.example; a@b.example"_s, u"https://a.example mailto:a@b.example"_s);
    row(u"file:///bin/sh javascript:alert(1) data:text/html,x ftp://a.example smb://a/b"_s, u""_s);
    row(u"https:// http://?x mailto: mailto:@ www. xhttps://a.example user@www.a.example"_s, u""_s);
}

void PageSelectionTest::opensOnlySafeLinks()
{
    QFETCH(QString, text);
    QFETCH(QString, links);
    QStringList found;
    for (const TextLinks::Link &link : TextLinks::in(text))
        found.append(link.url.toString());
    QCOMPARE(found.join(u' '), links);

    open({block(text)});
    QStringList opened;
    m_model->setLinkOpener([&](const QUrl &url) {
        opened.append(url.toString());
        return false;
    });
    QSignalSpy messages(m_model.get(), &PageEditorViewModel::message);
    for (const QString &word : text.split(u' '))
        m_model->openLink(word);
    for (const QString &link : opened)
        QVERIFY(link.startsWith(u"http"_s) || link.startsWith(u"mailto:"_s));
    QCOMPARE(messages.size(), opened.size());
    for (int place = 0; place <= text.size(); ++place)
        QVERIFY(links.isEmpty() ? m_model->linkIn(text, place).isEmpty() : true);
}

void PageSelectionTest::act(int choice)
{
    const auto below = [&](qsizetype count) { return int(m_random() % unsigned(count)); };
    if (!selection().isActive() || choice == 0)
        select(below(content().size()), below(content().size()));
    switch (choice) {
    case 1:
        return selection().extend(below(5) - 2);
    case 2:
        return selection().remove();
    case 3:
        return selection().typeOver(u"x"_s);
    case 4:
        return selection().changeType(below(11));
    case 5:
        return selection().move(below(2) == 0 ? -1 : 1);
    case 6:
        return selection().moveTo(below(content().size() + 1));
    case 7:
        return content().size() < 40 ? selection().duplicate() : selection().cut();
    case 8:
        selection().copy();
        select(below(content().size()), below(content().size()));
        return selection().paste(below(2) == 0);
    case 9:
        return selection().selectAll();
    default:
        m_model->setText(id(0), content()[0].text + QChar(u'a' + below(26)));
    }
}

void PageSelectionTest::undoesRandomWalksByteForByte()
{
    QVariantList blocks;
    for (int i = 0; i < 20; ++i)
        blocks.append(block(QString::number(i), enumRawText(BlockType(i % 11))));
    open(blocks);
    const std::size_t first = steps();
    QList<QByteArray> states{encoded()};
    for (int step = 0; step < 1'500; ++step) {
        m_workspace.advanceHours(1);
        act(int(m_random() % 11));
        if (m_random() % 3 == 0)
            QCoreApplication::sendPostedEvents();
        QVERIFY(!content().isEmpty());
        const qsizetype done = qsizetype(steps() - first);
        if (done >= states.size())
            states.append(encoded());
        else
            states.last() = encoded();
        for (int back = int(m_random() % 4); step % 10 == 0 && back > 0 && states.size() > 1; --back) {
            const QByteArray after = encoded();
            QCOMPARE(after, states.takeLast());
            m_session.undo()->undo();
            QCOMPARE(encoded(), states.last());
            m_session.undo()->redo();
            QCOMPARE(encoded(), after);
            m_session.undo()->undo();
        }
    }
    while (states.size() > 1) {
        QCOMPARE(encoded(), states.takeLast());
        m_session.undo()->undo();
    }
    QCOMPARE(encoded(), states.first());
}

void PageSelectionTest::spansTenThousandBlocks()
{
    QVariantList blocks;
    for (int i = 0; i < 10'000; ++i)
        blocks.append(block(u"Block %1"_s.arg(i)));
    open(blocks);
    QElapsedTimer timer;
    const auto measure = [&](const char *what, const std::function<void()> &act) {
        timer.start();
        act();
        QCoreApplication::sendPostedEvents();
        qInfo("%s: %lld ms", what, timer.elapsed());
        QVERIFY2(timer.elapsed() < 2'000, what);
    };
    measure("select", [&] { selection().selectAll(); });
    measure("extend", [&] { selection().extend(-1); });
    measure("turn into", [&] { selection().changeType(int(BlockType::numbered)); });
    measure("move", [&] { selection().move(1); });
    measure("copy", [&] { selection().copy(); });
    measure("duplicate", [&] { selection().duplicate(); });
    measure("cut", [&] { selection().cut(); });
    QCOMPARE(content().size(), 10'000);
    select(0, 0);
    measure("paste", [&] { selection().paste(true); });
    measure("undo", [&] { m_session.undo()->undo(); });
}

QTEST_MAIN(PageSelectionTest)
#include "tst_pageselection.moc"
