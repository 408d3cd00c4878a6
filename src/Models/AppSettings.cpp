#include "Models/AppSettings.h"

QString AppSettings::greeting(int hour) const
{
    QString words = QCoreApplication::translate("AppSettings", "Good evening");
    if (hour < 5)
        words = QCoreApplication::translate("AppSettings", "Still up");
    else if (hour < 12)
        words = QCoreApplication::translate("AppSettings", "Good morning");
    else if (hour < 18)
        words = QCoreApplication::translate("AppSettings", "Good afternoon");
    const QString name = userName.trimmed();
    return name.isEmpty() ? words : words + QStringLiteral(", ") + name;
}

QList<OrvelModule> AppSettings::visibleModules() const
{
    QList<OrvelModule> modules;
    for (const auto &entry : enumCases<OrvelModule>())
        if (!hiddenModules.contains(enumRawText(entry.value)))
            modules.append(entry.value);
    return modules;
}

void AppSettings::setModule(OrvelModule module, bool visible)
{
    const QString raw = enumRawText(module);
    if (visible)
        hiddenModules.removeAll(raw);
    else if (!hiddenModules.contains(raw))
        hiddenModules.append(raw);
}
