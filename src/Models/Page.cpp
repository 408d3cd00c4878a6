#include "Models/Page.h"

#include <QStringList>

QString Page::previewText() const
{
    QStringList texts;
    texts.reserve(content.size());
    for (const Block &block : content)
        texts.append(block.text);
    return texts.join(u' ').trimmed();
}
