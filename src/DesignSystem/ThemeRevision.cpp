#include "DesignSystem/ThemeRevision.h"

ThemeRevision &ThemeRevision::shared()
{
    static ThemeRevision revision;
    return revision;
}

void ThemeRevision::increment()
{
    ++m_value;
    emit valueChanged();
}
