#include "Foundation/TextSignature.h"

void TextSignature::add(QStringView folded)
{
    // Each run is mixed with its length, so that "a", "aa" and "aaa" are different.
    quint32 before = 0, first = 0;
    const qsizetype size = folded.size();
    for (qsizetype i = 0; i < size; ++i) {
        const quint32 unit = folded[i].unicode();
        insert(unit * 0x9e3779b1U + 1);
        if (i > 0)
            insert((before * 0x85ebca6bU ^ unit) * 0x9e3779b1U + 2);
        if (i > 1)
            insert(((first * 0xc2b2ae35U ^ before) * 0x85ebca6bU ^ unit) * 0x9e3779b1U + 3);
        first = before;
        before = unit;
    }
}

void TextSignature::insert(quint32 run)
{
    const quint32 bit = (run ^ run >> 15) >> 20;
    m_bits[bit / 64] |= quint64(1) << (bit % 64);
}
