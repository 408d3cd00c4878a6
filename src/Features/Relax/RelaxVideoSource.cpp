#include "Features/Relax/RelaxVideoSource.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

QString RelaxVideoSource::label() const
{
    if (kind == Kind::media)
        return QCoreApplication::translate("RelaxVideoSource", "Video file");
    const QString host = url.host().toLower();
    for (const auto &[part, name] :
         {std::pair{"youtube"_L1, "YouTube"_L1}, std::pair{"streamable"_L1, "Streamable"_L1},
          std::pair{"vimeo"_L1, "Vimeo"_L1}})
        if (host.contains(part))
            return name;
    return QCoreApplication::translate("RelaxVideoSource", "Web player");
}
