#include "Features/Pages/PageEditorViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/SnapshotCodec.h"

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTest>
#include <QUuid>

#include <random>

using namespace Qt::StringLiterals;

/// Random operations, each also done in the plainest way to a list of blocks: after each of them the record,
/// the rows shown and, now and then, the file hold what the list holds. Undone and done again, the workspace
/// is byte for byte what it was.
class PageEditorOperationsTest : public QObject
{
    Q_OBJECT

private slots:
    void keepRecordRowsAndFileEqual_data();
    void keepRecordRowsAndFileEqual();

private:
    using Random = std::mt19937;

    int below(qsizetype count) { return int(m_random() % unsigned(count)); }
    /// Anywhere in the text where a caret can stand.
    int anyPlace(const QString &text)
    {
        const int place = below(text.size() + 1);
        return place < text.size() && text[place].isLowSurrogate() ? place - 1 : place;
    }
    int anyRow() { return below(m_expected.size()); }
    const QList<Block> &content() const { return m_workspace.store().pages().first(m_page)->content; }

    void operate(PageEditorViewModel &editor);
    void write(PageEditorViewModel &editor, int row);
    void paste(PageEditorViewModel &editor, int row);
    void removeOrMove(PageEditorViewModel &editor, int row);
    void restyle(PageEditorViewModel &editor, int row);
    /// The ids of new blocks are not known before.
    void adoptNewIDs();
    static QStringList numberTexts(const QList<Block> &blocks);
    static QStringList role(PageEditorViewModel &editor, const QByteArray &name);
    QList<Block> savedBlocks();
    QByteArray encoded() const { return SnapshotCodec::encode(m_workspace.store().snapshot()); }
    /// Undoes and redoes some steps; each state has to be one that was seen on the way.
    void goBackAndForth(PageEditorViewModel &editor, int steps);
    void checkRows(PageEditorViewModel &editor);

    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    QUuid m_page;
    QList<Block> m_expected;
    Random m_random;
};

void PageEditorOperationsTest::write(PageEditorViewModel &editor, int row)
{
    static const QStringList pieces{u"a"_s, u"/"_s,     u" "_s,     u"👩‍👩‍👧"_s,
                                    u"é"_s, u"مرحبا"_s, u"\u00a0"_s};
    QString &text = m_expected[row].text;
    if (!text.isEmpty() && below(4) == 0)
        text.truncate(anyPlace(text));
    else
        text.insert(anyPlace(text), pieces[below(pieces.size())]);
    QCOMPARE(editor.setText(m_expected[row].id, text), text);
}

void PageEditorOperationsTest::paste(PageEditorViewModel &editor, int row)
{
    Block &block = m_expected[row];
    const int at = anyPlace(block.text);
    const QString before = block.text.first(at);
    const QString after = block.text.sliced(at);
    if (block.type == BlockType::code) {
        block.text = before + u"<1>\n<2>"_s + after;
        QCOMPARE(editor.setText(block.id, block.text), block.text);
        return;
    }
    QCOMPARE(editor.setText(block.id, before + u"<1>\n<2>\n<3>"_s + after), before + u"<1>"_s);
    block.text = before + u"<1>"_s;
    m_expected.insert(row + 1, Block{.text = u"<2>"_s});
    m_expected.insert(row + 2, Block{.text = u"<3>"_s + after});
}

void PageEditorOperationsTest::removeOrMove(PageEditorViewModel &editor, int row)
{
    const QUuid id = m_expected[row].id;
    if (below(3) == 0) {
        editor.deleteBlock(id);
        m_expected.removeAt(row);
        if (m_expected.isEmpty())
            m_expected.append(Block{});
        return;
    }
    const int delta = below(2) == 0 ? -1 : 1;
    editor.moveBlock(id, delta);
    if (row + delta >= 0 && row + delta < m_expected.size())
        std::swap(m_expected[row], m_expected[row + delta]);
}

void PageEditorOperationsTest::restyle(PageEditorViewModel &editor, int row)
{
    Block &block = m_expected[row];
    const auto type = BlockType(below(qsizetype(enumCases<BlockType>().size())));
    switch (below(5)) {
    case 0:
        editor.toggleChecked(block.id);
        block.checked = !block.checked;
        return;
    case 1:
        editor.setTone(block.id, int(CalloutTone::danger));
        block.tone = CalloutTone::danger;
        return;
    case 2:
        editor.setLanguage(block.id, u"python"_s);
        block.language = u"python"_s;
        return;
    case 3:
        editor.applySlash(block.id, int(type));
        block.text.clear();
        break;
    default:
        editor.changeType(block.id, int(type));
    }
    block.type = type;
    if (type != BlockType::checklist)
        block.checked = false;
}

void PageEditorOperationsTest::operate(PageEditorViewModel &editor)
{
    const int row = anyRow();
    const QUuid id = m_expected[row].id;
    switch (below(8)) {
    case 0:
        editor.insertBlock(id);
        m_expected.insert(row + 1, Block{});
        break;
    case 1:
        editor.duplicateBlock(id);
        m_expected.insert(row + 1, m_expected[row]);
        m_expected[row + 1].id = QUuid();
        break;
    case 2:
        editor.blockFocused(id);
        editor.appendBlock();
        m_expected.append(Block{});
        break;
    case 3:
        paste(editor, row);
        break;
    case 4:
        removeOrMove(editor, row);
        break;
    case 5:
        restyle(editor, row);
        break;
    default:
        write(editor, row);
    }
}

void PageEditorOperationsTest::adoptNewIDs()
{
    QCOMPARE(content().size(), m_expected.size());
    for (qsizetype i = 0; i < m_expected.size(); ++i)
        if (m_expected[i].id.isNull())
            m_expected[i].id = content()[i].id;
    QSet<QUuid> ids;
    for (const Block &block : m_expected)
        ids.insert(block.id);
    QCOMPARE(ids.size(), m_expected.size());
    QVERIFY(!ids.contains(QUuid()));
}

QStringList PageEditorOperationsTest::role(PageEditorViewModel &editor, const QByteArray &name)
{
    const QAbstractItemModel *const rows = editor.rows();
    QStringList values;
    for (int row = 0; row < rows->rowCount(); ++row)
        values.append(rows->index(row, 0).data(rows->roleNames().key(name)).toString());
    return values;
}

QStringList PageEditorOperationsTest::numberTexts(const QList<Block> &blocks)
{
    QStringList texts;
    int last = 0;
    for (const Block &block : blocks) {
        last = block.type == BlockType::numbered ? last + 1 : 0;
        texts.append(last > 0 ? QString::number(last) + u'.' : QString());
    }
    return texts;
}

QList<Block> PageEditorOperationsTest::savedBlocks()
{
    const QJsonObject file = QJsonDocument::fromJson(m_workspace.saved().toUtf8()).object();
    QList<Block> blocks;
    for (const QJsonValue &value : file[u"pages"].toArray()[0].toObject()[u"content"].toArray())
        blocks.append(Block{.id = QUuid(value[u"id"].toString()),
                            .type = *enumFromRaw<BlockType>(value[u"type"].toString()),
                            .text = value[u"text"].toString(),
                            .checked = value[u"checked"].toBool(),
                            .tone = *enumFromRaw<CalloutTone>(value[u"tone"].toString()),
                            .language = value[u"language"].toString()});
    return blocks;
}

void PageEditorOperationsTest::keepRecordRowsAndFileEqual_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1u, 2u, 3u})
        QTest::addRow("%u", seed) << seed;
}

void PageEditorOperationsTest::keepRecordRowsAndFileEqual()
{
    QFETCH(const unsigned, seed);
    m_random.seed(seed);
    m_workspace.reset();
    m_page = QUuid(m_workspace.addPageOf({QVariantMap{{u"text"_s, u"one"_s}}}));
    m_expected = content();
    m_workspace.ui().selectPage(m_page);
    PageEditorViewModel editor;
    editor.setSession(&m_session);
    editor.setPageID(m_page);
    const QAbstractItemModelTester tester(editor.rows());
    const QByteArray first = encoded();
    const std::size_t stepsBefore = m_workspace.store().history().size();

    for (int step = 0; step < 600; ++step) {
        operate(editor);
        adoptNewIDs();
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(content(), m_expected);
        // Some turns of the event loop hold several operations.
        if (below(3) > 0)
            continue;
        checkRows(editor);
        if (step % 20 == 0)
            QCOMPARE(savedBlocks(), m_expected);
        if (step % 10 == 0)
            goBackAndForth(editor, below(30));
    }
    QVERIFY(m_expected.size() > 3);
    QCOMPARE(savedBlocks(), m_expected);

    const QByteArray last = encoded();
    const std::size_t steps = m_workspace.store().history().size();
    for (std::size_t step = 0; step < steps - stepsBefore; ++step)
        m_session.undo()->undo();
    QCOMPARE(encoded(), first);
    while (m_session.undo()->canRedo())
        m_session.undo()->redo();
    QCOMPARE(encoded(), last);
    checkRows(editor);
}

void PageEditorOperationsTest::checkRows(PageEditorViewModel &editor)
{
    QCoreApplication::sendPostedEvents();
    QStringList texts;
    for (const Block &block : content())
        texts.append(block.type == BlockType::divider ? QString() : block.text);
    QCOMPARE(role(editor, "blockText"), texts);
    QCOMPARE(role(editor, "numberText"), numberTexts(content()));
}

void PageEditorOperationsTest::goBackAndForth(PageEditorViewModel &editor, int steps)
{
    UndoController &undo = *m_session.undo();
    QList<QByteArray> states{encoded()};
    while (states.size() <= steps && m_workspace.store().history().undoStep()->record == m_page &&
           m_workspace.store().history().undoStep()->name != u"New Page"_s) {
        undo.undo();
        states.append(encoded());
        QVERIFY(states.last() != states[states.size() - 2]);
        if (below(4) == 0)
            checkRows(editor);
    }
    while (states.size() > 1) {
        QCOMPARE(encoded(), states.takeLast());
        undo.redo();
    }
    QCOMPARE(encoded(), states.first());
    QVERIFY(!undo.canRedo());
    checkRows(editor);
}

QTEST_MAIN(PageEditorOperationsTest)
#include "tst_pageeditoroperations.moc"
