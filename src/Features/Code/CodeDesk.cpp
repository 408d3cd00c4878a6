#include "Features/Code/CodeDesk.h"

#include <utility>

namespace
{
/// Runs that are kept; each may hold megabytes.
constexpr qsizetype mostRuns = 12;
} // namespace

void CodeDesk::setFontSize(int size)
{
    size = qBound(smallestFont, size, largestFont);
    if (std::exchange(m_fontSize, size) != size)
        emit fontSizeChanged();
}

void CodeDesk::setShowConsole(bool shown)
{
    if (std::exchange(m_showConsole, shown) != shown)
        emit showConsoleChanged();
}

CodeRun *CodeDesk::run(const QUuid &document)
{
    m_order.removeOne(document);
    m_order.append(document);
    if (m_order.size() > mostRuns)
        for (qsizetype i = 0; i < m_order.size() - 1; ++i)
            if (!m_runs.value(m_order[i])->isRunning()) {
                forget(m_order[i]);
                break;
            }
    CodeRun *&run = m_runs[document];
    if (!run)
        run = new CodeRun(this);
    return run;
}

void CodeDesk::leave(const QUuid &document, int caret, const QPointF &scroll)
{
    m_places.insert(document, {caret, scroll});
}

void CodeDesk::forget(const QUuid &document)
{
    m_places.remove(document);
    m_order.removeOne(document);
    if (CodeRun *const run = m_runs.take(document))
        run->deleteLater();
}

void CodeDesk::reset()
{
    for (const QList<QUuid> documents = m_order; const QUuid &document : documents)
        forget(document);
    m_places.clear();
    m_wrap = false;
    m_showLineNumbers = true;
    emit wrapChanged();
    emit showLineNumbersChanged();
    setFontSize(usualFont);
    setShowConsole(false);
}
