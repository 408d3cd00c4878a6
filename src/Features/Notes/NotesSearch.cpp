#include "Features/Notes/NotesSearch.h"

#include "Store/PageOperations.h"
#include "Store/Questions.h"
#include "Store/SearchSignatures.h"

#include <QDeadlineTimer>

QList<const Page *> NotesSearch::filtered(const QString &query) const
{
    const QString folded = query.trimmed().toLower();
    if (folded.isEmpty())
        return PageOperations::notes(m_store);
    const SignatureQuery signatureQuery(folded);
    SearchedTexts texts;
    const auto isFound = [&](const Page &page) {
        if (page.kind != PageKind::note)
            return false;
        const Known *const known = find(page);
        return (!known || known->signature.mayHold(signatureQuery)) && texts.hold(page, folded);
    };
    return Questions::newestFirst(Questions::where(m_store.pages(), isFound), &Page::updatedDate);
}

const NotesSearch::Known *NotesSearch::find(const Page &note) const
{
    const auto found = m_known.constFind(note.id);
    return found != m_known.cend() && sharesTexts(found->note, note) ? &*found : nullptr;
}

bool NotesSearch::prepare(std::chrono::milliseconds budget)
{
    const QDeadlineTimer deadline(budget);
    SearchedTexts texts;
    m_known.removeIf([this](const std::pair<const QUuid &, Known &> &entry) {
        const Page *const page = m_store.pages().first(entry.first);
        return !page || page->kind != PageKind::note;
    });
    for (const Page &page : m_store.pages()) {
        if (page.kind != PageKind::note || find(page))
            continue;
        if (deadline.hasExpired())
            return false;
        m_known.insert(page.id, Known{page, texts.signature(page)});
    }
    return true;
}
