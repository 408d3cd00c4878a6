#include "Features/Pages/PageShare.h"
#include "Features/Pages/PageShareViewModel.h"
#include "Harness/TestWorkspace.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>
#include <QUuid>

namespace
{
QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

class PageShareTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void fileNamesAreSafe_data();
    void fileNamesAreSafe();
    void copies();
    void savesWhereAsked();
    void tellsWhySavingFailed();
    void opensACopyThatCannotBeWritten();
    void mailsThePage();
    void longPagesAreNotMailed();

private:
    void share(const QString &title, const QString &text)
    {
        m_share.setProperty("pageID", QUuid(m_workspace.addNote(title, text)));
    }
    QString said()
    {
        return m_messages->isEmpty() ? QString() : m_messages->takeFirst().constFirst().toString();
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    QTemporaryDir m_folder;
    PageShareViewModel m_share;
    std::unique_ptr<QSignalSpy> m_messages;
    QList<QUrl> m_opened;
    bool m_canOpen = true;
    QString m_offered;
    std::optional<SaveFileDialog::Answer> m_place;
};

void PageShareTest::init()
{
    m_workspace.reset();
    m_opened.clear();
    m_canOpen = true;
    m_place.reset();
    m_messages = std::make_unique<QSignalSpy>(&m_share, &PageShareViewModel::message);
    m_share.setSession(&m_session);
    m_share.setDesktop({[this](const QUrl &url) {
                            m_opened.append(url);
                            return m_canOpen;
                        },
                        [this](const QString &name, const SaveFileDialog::Receiver &receiver) {
                            m_offered = name;
                            receiver(m_place);
                        },
                        m_folder.path()});
}

void PageShareTest::fileNamesAreSafe_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "Plan: week 3/4" << "Plan- week 3-4.md";
    QTest::newRow("blank") << " \t" << "Untitled.md";
    QTest::newRow("empty") << "" << "Untitled.md";
    QTest::newRow("a way out") << "../../etc/passwd" << "-..-etc-passwd.md";
    QTest::newRow("only dots") << "..." << "Untitled.md";
    QTest::newRow("lines and controls") << QString::fromUtf16(u"a\nb\0c", 5) << "a b-c.md";
    QTest::newRow("dot at the end") << " Done. " << "Done.md";
    QTest::newRow("other scripts") << "Überblick 日本 👩‍👩‍👧"
                                   << "Überblick 日本 👩‍👩‍👧.md";
    QTest::newRow("long") << QStringLiteral("x").repeated(500) << QStringLiteral("x").repeated(200) + ".md";
    QTest::newRow("long emoji") << QStringLiteral("👩‍👩‍👧").repeated(50)
                                << QStringLiteral("👩‍👩‍👧").repeated(11) + ".md";
}

void PageShareTest::fileNamesAreSafe()
{
    QFETCH(QString, title);
    QTEST(PageShare::fileName(title), "name");
}

void PageShareTest::copies()
{
    share(QStringLiteral("Plan"), QStringLiteral("first\nsecond"));
    m_share.copyMarkdown();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("# Plan\n\nfirst\n\nsecond\n"));
    m_share.copyPlainText();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Plan\nfirst\nsecond"));
}

void PageShareTest::savesWhereAsked()
{
    share(QStringLiteral("Plan"), QStringLiteral("first"));
    m_share.save();
    QCOMPARE(m_offered, QStringLiteral("Plan.md"));
    QCOMPARE(said(), QString());

    m_place = {m_folder.filePath(QStringLiteral("chosen.md"))};
    m_share.save();
    QCOMPARE(contents(m_place->path), QStringLiteral("# Plan\n\nfirst\n"));
    QCOMPARE(said(), QStringLiteral("Saved as “chosen.md”."));

    m_place = {m_folder.filePath(QStringLiteral("Plan.md")), false};
    m_share.save();
    QCOMPARE(said(), QStringLiteral("Saved in “%1” as “Plan.md”.").arg(QDir(m_folder.path()).dirName()));
}

void PageShareTest::tellsWhySavingFailed()
{
    share(QStringLiteral("Plan"), QStringLiteral("first"));
    m_place = {m_folder.filePath(QStringLiteral("missing/Plan.md"))};
    m_share.save();
    const QString sentence = said();
    QVERIFY2(sentence.startsWith(QStringLiteral("The page could not be saved: ")), qPrintable(sentence));
    QVERIFY(sentence.contains(QStringLiteral("No such file or directory")));
}

void PageShareTest::opensACopyThatCannotBeWritten()
{
    share(QStringLiteral("Plan"), QStringLiteral("first"));
    m_share.open();
    QCOMPARE(m_opened.size(), 1);
    const QFileInfo file(m_opened.first().toLocalFile());
    QCOMPARE(file.fileName(), QStringLiteral("Plan.md"));
    QCOMPARE(contents(file.filePath()), QStringLiteral("# Plan\n\nfirst\n"));
    QCOMPARE(file.permissions() & ~QFile::Permissions(QFile::ReadUser | QFile::WriteUser), QFile::ReadOwner);
    QCOMPARE(QFile::permissions(file.path()) & (QFile::ReadOther | QFile::ExeOther | QFile::ReadGroup),
             QFile::Permissions());
    QCOMPARE(said(), QString());

    m_canOpen = false;
    m_share.open();
    QCOMPARE(said(), QStringLiteral("There is no program to open Markdown files."));
}

void PageShareTest::mailsThePage()
{
    share(QStringLiteral("Q&A = 100%?"), QStringLiteral("a+b & c#d\nnaïve 🌸"));
    m_share.mail();
    QCOMPARE(m_opened.size(), 1);
    const QUrl link = m_opened.first();
    QCOMPARE(link.scheme(), QStringLiteral("mailto"));
    const QByteArray encoded = link.toEncoded();
    QVERIFY2(encoded.startsWith("mailto:?subject=Q%26A%20%3D%20100%25%3F&body=%23%20Q%26A"),
             encoded.constData());
    QVERIFY2(encoded.endsWith("a%2Bb%20%26%20c%23d%0D%0A%0D%0Ana%C3%AFve%20%F0%9F%8C%B8%0D%0A"),
             encoded.constData());

    m_canOpen = false;
    m_share.mail();
    QCOMPARE(said(), QStringLiteral("There is no mail program to write with."));
}

void PageShareTest::longPagesAreNotMailed()
{
    share(QStringLiteral("Plan"), QStringLiteral("x").repeated(int(PageShare::mostMailBytes)));
    m_share.mail();
    QVERIFY(m_opened.isEmpty());
    QVERIFY(said().startsWith(QStringLiteral("The page is too long")));
}

QTEST_MAIN(PageShareTest)
#include "tst_pageshare.moc"
