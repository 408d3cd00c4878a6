// Draws pages of the program into pictures, in every look.
// usage: orvel-screenshots [--pseudo] FOLDER [BEGINNING OF A NAME]...
// --pseudo draws them in a language whose texts are a third longer.

#include "Scenes.h"

#include <QDir>
#include <QGuiApplication>
#include <QTextStream>
#include <QTranslator>

namespace
{
/// Stands for a language that needs more room: every marked text is a third longer and begins with a sign.
class PseudoLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString source = QString::fromUtf8(text);
        const qsizetype more = (source.size() + 2) / 3;
        return u'¬' + source + QString::fromLatin1(" und noch ein wenig").repeated(more / 19 + 1).left(more);
    }
};

bool isWanted(const QString &name, const QStringList &beginnings)
{
    return beginnings.isEmpty() || std::ranges::any_of(beginnings, [&name](const QString &beginning) {
               return name.startsWith(beginning);
           });
}
} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QStringList arguments = application.arguments();
    QTextStream err(stderr);
    PseudoLanguage pseudo;
    if (arguments.removeAll(QStringLiteral("--pseudo")) > 0)
        QCoreApplication::installTranslator(&pseudo);
    if (arguments.size() < 2) {
        err << "usage: orvel-screenshots [--pseudo] FOLDER [BEGINNING OF A NAME]...\n";
        return 2;
    }
    const QDir folder(arguments.at(1));
    if (!folder.mkpath(QStringLiteral("."))) {
        err << "The folder " << folder.path() << " cannot be made.\n";
        return 1;
    }
    for (const Picture &picture : allPictures()) {
        if (!isWanted(picture.name, arguments.sliced(2)))
            continue;
        const QString file = folder.filePath(picture.name + QStringLiteral(".png"));
        if (!draw(picture, file)) {
            err << "The picture " << file << " cannot be made.\n";
            return 1;
        }
    }
    return 0;
}
