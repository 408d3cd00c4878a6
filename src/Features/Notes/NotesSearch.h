#pragma once

#include "Foundation/TextSignature.h"
#include "Store/WorkspaceStore.h"

#include <chrono>

/// Finds notes by their text. Every note can be looked into at once; what is learned ahead of time spares
/// looking into most of them. It is used only for the very text it was learned from.
class NotesSearch
{
public:
    /// @param store lives longer than the search
    explicit NotesSearch(const WorkspaceStore &store) : m_store(store) {}

    /// The notes that hold the query in their title or their text, case aside, the last edited first; all
    /// for a blank query. The pointers hold until the store changes.
    QList<const Page *> filtered(const QString &query) const;

    /// Learns about the notes for about this long; true once all are known.
    bool prepare(std::chrono::milliseconds budget);

private:
    struct Known {
        /// Keeps the text alive, so that another one cannot lie at its place in memory.
        Page note;
        TextSignature signature;
    };

    /// What is known about the note as it stands; null if nothing is.
    const Known *find(const Page &note) const;

    const WorkspaceStore &m_store;
    QHash<QUuid, Known> m_known;
};
