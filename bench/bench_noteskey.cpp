#include "Harness/Scene.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
constexpr int noteCount = 10'000;
constexpr int fewNotes = 10;
/// Typed letter by letter: it is in many notes, then in one of ten, and in the end in none.
constexpr char16_t typedText[] = u"harbour 7x";

Snapshot notes(int count)
{
    const QString text =
        QStringLiteral("The harbour wakes before the town does. Nets are mended on the quay. ");
    const QDateTime start = QDateTime::currentDateTimeUtc().addDays(-30);
    Snapshot workspace;
    for (int i = 0; i < count; ++i) {
        Page note;
        note.id = QUuid::createUuid();
        note.kind = PageKind::note;
        note.title = QStringLiteral("Note %1").arg(i);
        note.updatedDate = toTimestamp(start.addSecs(i));
        note.content.append({.id = QUuid::createUuid(), .text = text.repeated(1 + i % 8)});
        note.content.append(
            {.id = QUuid::createUuid(), .text = QStringLiteral("Seen from the harbour %1").arg(i % 10)});
        workspace.list<Page>().append(note);
    }
    return workspace;
}

/// The notes screen over a workspace.
class NotesScene : public Scene
{
public:
    explicit NotesScene(const Snapshot &workspace)
        : Scene(workspace, "import Orvel.Notes\nNotesView { focus: true }")
    {
    }

    Comparison::Duration typeKey()
    {
        const QString text = QString::fromUtf16(typedText);
        if (m_typed == text.size()) {
            press(Qt::Key_Escape);
            m_typed = 0;
        }
        const QChar letter = text[m_typed++];
        return press(letter.toUpper().unicode(), letter);
    }

    QString query() const { return focusItem() ? focusItem()->property("text").toString() : QString(); }

private:
    qsizetype m_typed = 0;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    NotesScene many(notes(noteCount));
    NotesScene few(notes(fewNotes));
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };

    Comparison comparison;
    const auto openings = Comparison::alternate(20, [&] { return many.open(); }, [&] { return few.open(); });
    comparison.timeUnder(QStringLiteral("open the notes screen, 10,000 notes against 10, half of the times"),
                         Comparison::quantile(openings.ours, 0.5),
                         Comparison::quantile(openings.baseline, 0.5), milliseconds(100));
    const auto keys =
        Comparison::alternate(300, [&] { return many.typeKey(); }, [&] { return few.typeKey(); });
    if (many.query().isEmpty() || !QString::fromUtf16(typedText).startsWith(many.query())) {
        std::fprintf(stderr, "bench_noteskey: the keys have not arrived\n");
        return 2;
    }
    for (const int share : {50, 95})
        comparison.timeUnder(
            QStringLiteral("key into the search of 10,000 notes, against 10, %1 of 100").arg(share),
            Comparison::quantile(keys.ours, share / 100.0),
            Comparison::quantile(keys.baseline, share / 100.0), milliseconds(8));
    return comparison.exitCode();
}
