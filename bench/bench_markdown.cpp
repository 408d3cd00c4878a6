#include "Features/Transfer/MarkdownTransfer.h"
#include "Harness/Scene.h"

#include <QDir>
#include <QGuiApplication>
#include <QThread>

#include <cstdio>

namespace
{
constexpr int fileCount = 1000;
constexpr int bytesPerFile = 10'000;

/// A text of headings, paragraphs, lists, to-dos, quotes and code.
QByteArray document(int number)
{
    QByteArray text = "# Document " + QByteArray::number(number) + "\n\n";
    for (int part = 0; text.size() < bytesPerFile; ++part)
        text += "## Part " + QByteArray::number(part) +
                "\n\nThe harbour wakes before the town does. *Nets* are mended on the quay, and the boats go "
                "out.\n\n"
                "- nets\n- oars\n- [x] mend the sail\n\n> A harbour is a promise.\n\n1. first\n2. second\n\n"
                "```python\nfor boat in harbour:\n    print(boat)\n```\n\n";
    return text;
}

/// The bytes of all files, read one after the other: what no import can do without.
Comparison::Duration readBytes(const QString &folder)
{
    return timed([&] {
        qint64 size = 0;
        for (const QFileInfo &entry : QDir(folder).entryInfoList(QDir::Files)) {
            QFile file(entry.filePath());
            if (file.open(QIODevice::ReadOnly))
                size += file.readAll().size();
        }
        if (size < qint64(fileCount) * bytesPerFile)
            std::exit(2);
    });
}

/// The window during an import: how long it takes in all, and the longest turn of its event loop.
class ImportScene : public Scene
{
public:
    ImportScene() : Scene({}, "import Orvel.App\nWorkspaceView { }")
    {
        m_transfer.setSession(desk().session.get());
    }

    Comparison::Duration import(const QString &folder)
    {
        return timed([&] {
            m_transfer.read({QUrl::fromLocalFile(folder)});
            while (m_transfer.isBusy()) {
                turn([] {});
                QThread::usleep(500);
            }
            turn([&] { m_transfer.addPages(); });
            for (int i = 0; i < 20; ++i)
                turn([] {});
        });
    }
    void takeBack()
    {
        desk().session->undo()->undo();
        settle();
    }
    qsizetype pageCount() { return desk().store->pages().size(); }

    Comparison::Duration longest{0};

private:
    template <typename Call>
    void turn(Call call)
    {
        longest = std::max(longest, timed([&] {
                               call();
                               settle();
                           }));
    }

    MarkdownTransfer m_transfer;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    for (int i = 0; i < fileCount; ++i) {
        QFile file(folder.filePath(QStringLiteral("%1.md").arg(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(document(i)) < bytesPerFile)
            return 2;
    }
    ImportScene scene;
    scene.open();
    QList<Comparison::Duration> imports, turns, reads;
    for (int round = 0; round < 5; ++round) {
        scene.longest = Comparison::Duration(0);
        imports.append(scene.import(folder.path()));
        turns.append(scene.longest);
        reads.append(readBytes(folder.path()));
        if (scene.pageCount() != fileCount) {
            std::fprintf(stderr, "bench_markdown: the pages have not arrived\n");
            return 2;
        }
        scene.takeBack();
    }
    Comparison comparison;
    comparison.timeUnder(QStringLiteral("import 1,000 Markdown files of 10 KB"),
                         Comparison::quantile(imports, 0.5), Comparison::quantile(reads, 0.5),
                         Comparison::Duration(2000));
    comparison.timeUnder(QStringLiteral("longest turn of the window in it"), Comparison::quantile(turns, 0.5),
                         Comparison::quantile(reads, 0.5), Comparison::Duration(16));
    return comparison.exitCode();
}
