#include "Support/Updates/AppBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace
{
constexpr QLatin1StringView contents("/Contents");
constexpr QLatin1StringView programFolder("/Contents/bin");
/// Nobody needs more, and a stranger's file may be of any size.
constexpr qint64 mostInfoBytes = 1 << 20;
} // namespace

QString AppBundle::programPath(const QString &bundle)
{
    return bundle + programFolder + "/orvel"_L1;
}

bool AppBundle::hasProgram(const QString &bundle)
{
    const QFileInfo program(programPath(bundle));
    return program.isFile() && program.isExecutable();
}

QString AppBundle::info(const QString &bundle, QStringView key)
{
    QFile file(bundle + contents + "/Info.plist"_L1);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(file.read(mostInfoBytes));
    // <plist><dict>: texts of dictionaries further inside are not the bundle's.
    if (!reader.readNextStartElement() || !reader.readNextStartElement())
        return {};
    QString lastKey;
    while (reader.readNextStartElement()) {
        if (reader.name() == "key"_L1)
            lastKey = reader.readElementText();
        else if (reader.name() == "string"_L1 && lastKey == key)
            return reader.readElementText();
        else
            reader.skipCurrentElement();
    }
    return {};
}

QString AppBundle::version(const QString &bundle)
{
    return info(bundle, u"CFBundleShortVersionString").trimmed();
}

QString AppBundle::containing(const QString &folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    const QString bundle = path.chopped(path.endsWith(programFolder) ? programFolder.size() : 0);
    const bool isBundle =
        bundle.endsWith(".app"_L1) && QFileInfo(bundle + contents + "/Info.plist"_L1).isFile();
    return isBundle ? bundle : QString();
}
