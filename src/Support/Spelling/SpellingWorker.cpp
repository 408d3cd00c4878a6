#include "Support/Spelling/SpellingWorker.h"

#include <algorithm>

void SpellingWorker::load(const QStringList &paths)
{
    m_dictionaries.clear();
    for (const QString &path : paths) {
        auto dictionary = SpellingDictionary::load(path);
        if (dictionary)
            m_dictionaries.push_back(std::move(*dictionary));
        else
            qWarning("Spelling: %s", qUtf8Printable(dictionary.error()));
    }
}

QList<bool> SpellingWorker::check(const QStringList &words)
{
    QList<bool> right;
    for (const QString &word : words)
        right.append(m_dictionaries.empty() ||
                     std::ranges::any_of(m_dictionaries, [&](auto &each) { return each.isRight(word); }));
    return right;
}

QStringList SpellingWorker::suggestions(const QString &word, int maxCount)
{
    QList<QStringList> ofEach;
    qsizetype longest = 0;
    for (SpellingDictionary &dictionary : m_dictionaries) {
        ofEach.append(dictionary.suggestions(word));
        longest = std::max(longest, ofEach.last().size());
    }
    QStringList all;
    for (qsizetype rank = 0; rank < longest; ++rank)
        for (const QStringList &list : std::as_const(ofEach))
            if (rank < list.size() && !all.contains(list[rank]) && all.size() < maxCount)
                all.append(list[rank]);
    return all;
}
