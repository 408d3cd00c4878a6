#include "Models/CodeDocument.h"

qsizetype CodeDocument::lineCount() const
{
    return source.count(u'\n') + 1;
}
