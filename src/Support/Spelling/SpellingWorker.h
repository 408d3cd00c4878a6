#pragma once

#include "Support/Spelling/SpellingDictionary.h"

#include <vector>

/// What the thread of the spell checker does: it has the dictionaries.
class SpellingWorker : public QObject
{
public:
    /// Loads these dictionaries in the place of the others. Those that can't be loaded are left out.
    /// @param paths of the ".dic" files
    void load(const QStringList &paths);
    /// Whether each of the words is right in any of the dictionaries; without one all of them are.
    QList<bool> check(const QStringList &words);
    /// What may have been meant by a word, each dictionary's best first.
    QStringList suggestions(const QString &word, int maxCount);

private:
    std::vector<SpellingDictionary> m_dictionaries;
};
