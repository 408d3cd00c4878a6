#include "Features/Pages/PageEditorViewModel.h"
#include "Harness/TestWorkspace.h"

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace
{
void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}
} // namespace

class PageEditorViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void insertsBlocks();
    void deletesBlocks();
    void focusFollowsADeletedBlock();
    void movesBlocks();
    void duplicatesBlocks();
    void changesTypes();
    void appliesTheSlashMenu();
    void dismissesTheSlashMenu();
    void writesOneRowForAKey();
    void breaksPastedLines();
    void showsLongTextsInParts();
    void pastesLongTexts_data();
    void pastesLongTexts();
    void keepsUnknownLanguages();
    void standsStillWithoutItsPage();
    void dropsTheRunsOfDeletedBlocks();

private:
    void open(const QStringList &texts)
    {
        QVariantList blocks;
        for (const QString &text : texts)
            blocks.append(QVariantMap{{u"text"_s, text}});
        openBlocks(blocks);
    }
    void openBlocks(const QVariantList &blocks)
    {
        m_page = QUuid(m_workspace.addPageOf(blocks));
        m_model->setPageID(m_page);
        m_workspace.advanceHours(1);
        finishTurn();
    }
    const Page &page() const { return *m_workspace.store().pages().first(m_page); }
    QUuid id(int index) const { return page().content[index].id; }
    /// The texts in the store, and a check that the rows show the same.
    QString texts()
    {
        finishTurn();
        QStringList texts;
        for (int i = 0; i < page().content.size(); ++i) {
            texts.append(page().content[i].text);
            if (role(i, "blockText") != texts.last())
                texts.last() += u" (row: %1)"_s.arg(role(i, "blockText").toString());
        }
        return texts.join(u'|');
    }
    QVariant role(int row, const QByteArray &name) const
    {
        const QAbstractItemModel *const model = m_model->rows();
        return model->index(row, 0).data(model->roleNames().key(name));
    }
    bool isTouched() const { return page().updatedDate == m_workspace.clock().now(); }

    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    QUuid m_page;
    std::unique_ptr<PageEditorViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<QSignalSpy> m_focus;
};

void PageEditorViewModelTest::init()
{
    m_workspace.reset();
    m_model = std::make_unique<PageEditorViewModel>();
    m_model->setSession(&m_session);
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model->rows());
    m_focus = std::make_unique<QSignalSpy>(m_model.get(), &PageEditorViewModel::focusRequested);
}

void PageEditorViewModelTest::cleanup()
{
    m_focus.reset();
    m_tester.reset();
    m_model.reset();
}

void PageEditorViewModelTest::insertsBlocks()
{
    open({u"a"_s, u"b"_s});
    m_model->insertBlock(id(0));
    QVERIFY(m_focus->isEmpty());
    QCOMPARE(texts(), u"a||b"_s);
    QVERIFY(isTouched());
    const Block fresh = page().content[1];
    QCOMPARE(fresh, (Block{.id = fresh.id}));
    QCOMPARE(m_focus->takeFirst(), (QVariantList{1, 0}));
    m_model->appendBlock();
    QCOMPARE(texts(), u"a||b|"_s);
    QCOMPARE(m_focus->takeFirst(), (QVariantList{3, 0}));
    m_model->insertBlock(QUuid::createUuid());
    QCOMPARE(texts(), u"a||b|"_s);
    QVERIFY(m_focus->isEmpty());
}

void PageEditorViewModelTest::deletesBlocks()
{
    open({u"a"_s});
    const QUuid only = id(0);
    m_model->deleteBlock(only);
    QCOMPARE(texts(), QString());
    QCOMPARE(page().content.size(), 1);
    QVERIFY(id(0) != only);
    QVERIFY(m_focus->isEmpty());
}

void PageEditorViewModelTest::focusFollowsADeletedBlock()
{
    open({u"a"_s, u"b"_s, u"c"_s});
    m_model->blockFocused(id(1));
    m_model->deleteBlock(id(0));
    finishTurn();
    QVERIFY(m_focus->isEmpty());
    m_model->deleteBlock(id(0));
    QCOMPARE(texts(), u"c"_s);
    QCOMPARE(m_focus->takeFirst(), (QVariantList{0, -1}));
}

void PageEditorViewModelTest::movesBlocks()
{
    open({u"a"_s, u"b"_s});
    m_model->moveBlock(id(0), 1);
    QCOMPARE(texts(), u"b|a"_s);
    m_workspace.advanceHours(1);
    QVERIFY(!isTouched());
    m_model->moveBlock(id(0), -1);
    QCOMPARE(texts(), u"b|a"_s);
    QVERIFY(isTouched());
    QVERIFY(m_focus->isEmpty());
}

void PageEditorViewModelTest::duplicatesBlocks()
{
    openBlocks({QVariantMap{
        {u"text"_s, u"a"_s}, {u"type"_s, u"callout"_s}, {u"tone"_s, u"danger"_s}, {u"checked"_s, true}}});
    m_model->duplicateBlock(id(0));
    Block copy = page().content[1];
    QVERIFY(copy.id != id(0));
    copy.id = id(0);
    QCOMPARE(copy, page().content[0]);
    finishTurn();
    QVERIFY(m_focus->isEmpty());
}

void PageEditorViewModelTest::changesTypes()
{
    openBlocks({QVariantMap{{u"text"_s, u"a"_s}, {u"type"_s, u"checklist"_s}, {u"checked"_s, true}}});
    m_model->changeType(id(0), int(BlockType::numbered));
    QCOMPARE(texts(), u"a"_s);
    QCOMPARE(role(0, "numberText").toString(), u"1."_s);
    QVERIFY(!page().content[0].checked);
    QCOMPARE(m_focus->takeFirst(), (QVariantList{0, -1}));
    m_model->changeType(id(0), int(enumCases<BlockType>().size()));
    QCOMPARE(page().content[0].type, BlockType::numbered);
}

void PageEditorViewModelTest::appliesTheSlashMenu()
{
    open({u"/cod"_s, u"b"_s});
    QVERIFY(m_model->slashTypes().isEmpty());
    m_model->blockFocused(id(0));
    QCOMPARE(m_model->slashTypes(), QList{int(BlockType::code)});
    m_model->applySlash(id(0), int(BlockType::code));
    QCOMPARE(texts(), u"|b"_s);
    QCOMPARE(page().content[0].type, BlockType::code);
    QVERIFY(m_model->slashTypes().isEmpty());
    QCOMPARE(m_focus->takeFirst(), (QVariantList{0, 0}));
}

void PageEditorViewModelTest::dismissesTheSlashMenu()
{
    open({u"/"_s});
    m_model->blockFocused(id(0));
    QCOMPARE(m_model->slashTypes().size(), 11);
    m_model->dismissSlash();
    QVERIFY(m_model->slashTypes().isEmpty());
    m_model->setText(id(0), u"/q"_s);
    finishTurn();
    QCOMPARE(m_model->slashTypes(), QList{int(BlockType::quote)});
    m_model->setText(id(0), u"/"_s);
    finishTurn();
    QCOMPARE(m_model->slashTypes().size(), 11);
    m_model->blockLeft(id(0));
    QVERIFY(m_model->slashTypes().isEmpty());
}

void PageEditorViewModelTest::writesOneRowForAKey()
{
    QStringList many;
    for (int i = 0; i < 2000; ++i)
        many.append(u"Block %1"_s.arg(i));
    open(many);
    QSignalSpy changes(m_model->rows(), &QAbstractItemModel::dataChanged);
    QCOMPARE(m_model->setText(id(1000), u"x"_s), u"x"_s);
    finishTurn();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes[0][0].toModelIndex().row(), 1000);
    QCOMPARE(changes[0][2].value<QList<int>>().size(), 1);
    QVERIFY(isTouched());
    QVERIFY(m_workspace.saved().contains(u"\"text\":\"x\""_s));
}

void PageEditorViewModelTest::breaksPastedLines()
{
    openBlocks({QVariantMap{{u"text"_s, u"ab"_s}, {u"type"_s, u"quote"_s}},
                QVariantMap{{u"text"_s, u"x"_s}, {u"type"_s, u"code"_s}}});
    QSignalSpy changes(&m_workspace.store(), &WorkspaceStore::changed);
    QCOMPARE(m_model->setText(id(0), u"a1\n2b"_s), u"a1"_s);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(texts(), u"a1|2b|x"_s);
    QCOMPARE(page().content[0].type, BlockType::quote);
    QCOMPARE(page().content[1].type, BlockType::paragraph);
    QCOMPARE(m_focus->takeFirst(), (QVariantList{1, 1}));
    m_model->setText(id(2), u"x\ny"_s);
    QCOMPARE(texts(), u"a1|2b|x\ny"_s);
}

void PageEditorViewModelTest::showsLongTextsInParts()
{
    const QString text = u"one two three "_s.repeated(10'000);
    open({text, u"b"_s});
    const auto shown = [this] { return role(0, "blockText").toString(); };
    const qsizetype first = shown().size();
    QVERIFY(first <= ShownParts::maxTextLength);
    QCOMPARE(role(0, "partText").toString(), u"Characters 1–%L1 of 140,000"_s.arg(first));
    QVERIFY(!m_model->hasPart(id(0), -1));
    QVERIFY(!m_model->showPart(id(0), -1));

    QVERIFY(m_model->showPart(id(0), 1));
    finishTurn();
    QCOMPARE(m_focus->takeFirst(), (QVariantList{0, 0}));
    QVERIFY(text.sliced(first).startsWith(shown()));
    QCOMPARE(m_model->setText(id(0), u"new "_s + shown()), u"new "_s + shown());
    QCOMPARE(page().content[0].text, QString(text).insert(first, u"new "_s));
    finishTurn();
    QVERIFY(shown().startsWith(u"new "_s));

    // A line feed takes along all that stands behind it.
    QVERIFY(m_model->setText(id(0), QString(shown()).replace(0, 4, u"x\ny"_s)).endsWith(u'x'));
    finishTurn();
    QCOMPARE(page().content[0].text, text.first(first) + u'x');
    QCOMPARE(page().content[1].text, u'y' + text.sliced(first));
    QCOMPARE(m_focus->takeFirst(), (QVariantList{1, 1}));
}

void PageEditorViewModelTest::pastesLongTexts_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<int>("blocks");
    QTest::addColumn<int>("focusedBlock");
    const QString line = u"A line of some length."_s;
    QTest::newRow("short") << u"paragraph"_s << line << 2 << 0;
    QTest::newRow("short code") << u"code"_s << line << 2 << -1;
    QTest::newRow("one line") << u"paragraph"_s << line.repeated(50'000) << 2 << 0;
    QTest::newRow("lines") << u"paragraph"_s << (line + u"\r\n"_s).repeated(50'000) << 50'002 << 50'000;
    QTest::newRow("code") << u"code"_s << (line + u'\n').repeated(50'000) << 2 << 0;
}

void PageEditorViewModelTest::pastesLongTexts()
{
    QFETCH(QString, type);
    QFETCH(QString, pasted);
    QFETCH(int, blocks);
    QFETCH(int, focusedBlock);
    openBlocks({QVariantMap{{u"text"_s, u"abcd"_s}, {u"type"_s, type}}, QVariantMap{{u"text"_s, u"end"_s}}});
    QGuiApplication::clipboard()->setText(pasted);
    QCOMPARE(m_model->paste(id(0), 1, 3), focusedBlock >= 0);
    // What is long is read on another thread.
    if (focusedBlock >= 0)
        QTRY_COMPARE(m_focus->size(), 1);
    QCOMPARE(page().content.size(), blocks);
    if (focusedBlock < 0)
        return;
    QString whole = page().content[0].text;
    for (int i = 1; i < blocks - 1; ++i)
        whole += u'\n' + page().content[i].text;
    QVERIFY(whole == u'a' + pasted.replace(u"\r\n"_s, u"\n"_s) + u'd');
    const QVariantList focus = m_focus->takeFirst();
    QCOMPARE(focus[0].toInt(), focusedBlock);
    const QString shown = role(focusedBlock, "blockText").toString();
    QVERIFY(shown.size() <= ShownParts::maxCodeLength);
    QVERIFY(shown.sliced(focus[1].toInt()).startsWith(u'd'));
}

void PageEditorViewModelTest::keepsUnknownLanguages()
{
    openBlocks({QVariantMap{{u"type"_s, u"code"_s}, {u"language"_s, u"cobol"_s}}});
    QCOMPARE(role(0, "language").toString(), u"cobol"_s);
    m_model->setLanguage(id(0), u"fortran"_s);
    QCOMPARE(page().content[0].language, u"cobol"_s);
    m_model->setLanguage(id(0), u"python"_s);
    QCOMPARE(page().content[0].language, u"python"_s);
}

void PageEditorViewModelTest::standsStillWithoutItsPage()
{
    open({u"a"_s});
    const QUuid block = id(0);
    m_workspace.store().erase<Page>(m_page);
    finishTurn();
    m_model->insertBlock(block);
    m_model->deleteBlock(block);
    m_model->changeType(block, 1);
    QCOMPARE(m_model->setText(block, u"b"_s), u"b"_s);
    m_model->runInlineCode(block);
    finishTurn();
    QVERIFY(m_workspace.store().pages().isEmpty());
    QCOMPARE(role(0, "blockText").toString(), u"a"_s);
    QVERIFY(m_focus->isEmpty());
}

void PageEditorViewModelTest::dropsTheRunsOfDeletedBlocks()
{
    openBlocks({QVariantMap{{u"type"_s, u"code"_s}}, QVariantMap{{u"type"_s, u"code"_s}}});
    const QPointer<CodeRun> gone = m_model->codeRun(id(0));
    const QPointer<CodeRun> kept = m_model->codeRun(id(1));
    QCOMPARE(m_model->codeRun(id(0)), gone.get());
    m_model->deleteBlock(id(0));
    finishTurn();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!gone);
    QVERIFY(kept);
}

QTEST_MAIN(PageEditorViewModelTest)
#include "tst_pageeditorviewmodel.moc"
