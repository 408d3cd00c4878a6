#include "Session/VisitHistory.h"

#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"

#include <QScopedValueRollback>

VisitHistory::VisitHistory(WorkspaceStore *store, UIState *ui, QObject *parent)
    : QObject(parent), m_store(store), m_ui(ui), m_present(present())
{
    connect(ui, &UIState::selectionChanged, this, &VisitHistory::followSelection);
    for (const auto opened :
         {&UIState::codeDocumentIDChanged, &UIState::bookIDChanged, &UIState::deckIDChanged})
        connect(ui, opened, this, [this] {
            if (m_present.place == m_ui->selection())
                m_present = present();
        });
    connect(store, &WorkspaceStore::changed, this, &VisitHistory::changed);
}

VisitHistory::Visit VisitHistory::present() const
{
    return {m_ui->selection(), m_ui->codeDocumentID(), m_ui->bookID(), m_ui->deckID(), {}};
}

void VisitHistory::followSelection()
{
    m_view.clear();
    if (!m_isGoing) {
        add(m_back, m_present);
        m_forward.clear();
    }
    m_present = present();
    emit changed();
}

void VisitHistory::go(QList<Visit> &from, QList<Visit> &to)
{
    const qsizetype next = indexOfNext(from);
    if (next < 0)
        return;
    const QScopedValueRollback going(m_isGoing, true);
    add(to, m_present);
    for (qsizetype passed = from.size() - 1; passed > next; --passed)
        add(to, from[passed]);
    const Visit visit = from[next];
    from.resize(next);
    m_ui->setSelection(visit.place);
    // What was open there, where the place alone does not say it.
    for (const auto &[id, set] :
         {std::pair(visit.codeDocument, &UIState::setCodeDocumentID),
          std::pair(visit.book, &UIState::setBookID), std::pair(visit.deck, &UIState::setDeckID)})
        if (!id.isNull())
            (m_ui->*set)(id);
    m_view = visit.view;
    emit changed();
}

QList<Destination> VisitHistory::recentPlaces(qsizetype most) const
{
    QList<Destination> places;
    for (const QList<Visit> *const visits : {&m_forward, &m_back})
        for (auto visit = visits->rbegin(); visit != visits->rend() && places.size() < most; ++visit)
            if (visit->place != m_ui->selection() && !places.contains(visit->place) && exists(visit->place))
                places.append(visit->place);
    return places;
}

void VisitHistory::keepView(const QString &place, const QVariant &view)
{
    for (QList<Visit> *const visits : {&m_back, &m_forward})
        for (auto visit = visits->rbegin(); visit != visits->rend(); ++visit)
            if (visit->place.text() == place) {
                visit->view = view;
                break;
            }
}

QVariant VisitHistory::takeView()
{
    return std::exchange(m_view, {});
}

bool VisitHistory::exists(const Destination &place) const
{
    switch (place.kind) {
    case Destination::Kind::page:
        return m_store->list<Page>().first(place.id);
    case Destination::Kind::project:
        return m_store->list<Project>().first(place.id);
    case Destination::Kind::codeDocument:
        return m_store->list<CodeDocument>().first(place.id);
    case Destination::Kind::deck:
        return m_store->list<Deck>().first(place.id);
    default:
        return true;
    }
}

qsizetype VisitHistory::indexOfNext(const QList<Visit> &visits) const
{
    qsizetype index = visits.size() - 1;
    while (index >= 0 && (visits[index].place == m_ui->selection() || !exists(visits[index].place)))
        --index;
    return index;
}

void VisitHistory::add(QList<Visit> &visits, const Visit &visit)
{
    visits.append(visit);
    if (visits.size() > maxVisits)
        visits.removeFirst();
}
