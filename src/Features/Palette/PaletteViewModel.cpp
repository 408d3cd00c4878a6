#include "Features/Palette/PaletteViewModel.h"

#include "Features/Palette/PaletteRows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void PaletteViewModel::setUi(UIState *ui)
{
    if (m_ui == ui)
        return;
    if (m_ui)
        m_ui->disconnect(this);
    m_ui = ui;
    // A user who goes somewhere else by a key is done with the palette.
    if (m_ui)
        connect(m_ui, &UIState::selectionChanged, this, [this] { m_ui->setSearchPresented(false); });
    emit sourcesChanged();
}

void PaletteViewModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    const bool asksTheSame = m_query.trimmed() == query.trimmed();
    m_query = query;
    emit queryChanged();
    if (!asksTheSame)
        refresh();
}

int PaletteViewModel::groupCount() const
{
    return int(std::ranges::count_if(rowList(), [](const PaletteRow &row) { return !row.header.isEmpty(); }));
}

bool PaletteViewModel::isNothingFound() const
{
    return rowList().isEmpty() && !m_query.trimmed().isEmpty();
}

QString PaletteViewModel::nothingFoundText() const
{
    return tr("Nothing matches “%1”.").arg(m_query.trimmed());
}

void PaletteViewModel::setHighlighted(int row)
{
    if (row == m_highlighted || row < 0 || row >= count())
        return;
    m_highlighted = row;
    emit highlightedChanged();
}

QString PaletteViewModel::highlightedText() const
{
    const PaletteRow row = rowList().value(m_highlighted);
    return row.subtitle.isEmpty() ? row.name : row.name + u", "_s + row.subtitle;
}

void PaletteViewModel::begin()
{
    if (!m_query.isEmpty()) {
        m_query.clear();
        emit queryChanged();
    }
    refresh();
}

void PaletteViewModel::step(int rows)
{
    if (count() > 0)
        setHighlighted(((m_highlighted + rows) % count() + count()) % count());
}

void PaletteViewModel::jump(int rows)
{
    if (count() > 0)
        setHighlighted(std::clamp(m_highlighted + rows, 0, count() - 1));
}

void PaletteViewModel::open(int row)
{
    if (row < 0 || row >= count())
        return;
    const PaletteRow opened = rowList()[row];
    m_ui->setSearchPresented(false);
    m_ui->setShortcutsPresented(false);
    if (opened.command.isEmpty())
        m_ui->showText(opened.destination, opened.showsText ? m_query.trimmed() : QString());
    else
        runLater(opened.command);
}

QList<NamedCommand> PaletteViewModel::commands() const
{
    return m_session && m_session->commands() ? m_session->commands()->namedCommands()
                                              : QList<NamedCommand>();
}

void PaletteViewModel::runLater(const QString &command)
{
    // Once the palette has given the keyboard back.
    QMetaObject::invokeMethod(
        this,
        [this, command] {
            if (m_session && m_session->commands())
                m_session->commands()->runCommand(command);
        },
        Qt::QueuedConnection);
}

void PaletteViewModel::refresh()
{
    const QString query = m_query.trimmed();
    if (query.isEmpty())
        m_rows.setRows(PaletteRows::start(
            *m_store, m_ui->selection(),
            m_session ? m_session->visits()->recentPlaces(PaletteRows::mostRecent) : QList<Destination>()));
    else
        m_rows.setRows(PaletteRows::found(m_search->search(query), commands(), query));
    m_highlighted = rowList().isEmpty() ? -1 : 0;
    emit rowsChanged();
    emit highlightedChanged();
}
