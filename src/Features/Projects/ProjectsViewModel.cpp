#include "Features/Projects/ProjectsViewModel.h"

#include "Foundation/LineText.h"
#include "Store/ProjectOperations.h"

ProjectsViewModel::ProjectsViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Project, TaskItem>();
    followDays();
    QList<TemplateLine> lines;
    for (const ProjectTemplate &each : ProjectTemplates::all())
        lines.append(TemplateLine::of(each));
    m_builtInTemplates.setRows(std::move(lines));
}

void ProjectsViewModel::create(const QString &templateID)
{
    const auto &all = ProjectTemplates::all();
    const auto found = std::ranges::find(all, templateID, &ProjectTemplate::id);
    if (found == all.end())
        return;
    const Action action(store(), QString());
    ui().selectProject(ProjectOperations::create(store(), *found));
}

void ProjectsViewModel::setBlankName(const QString &name)
{
    if (m_blankName == name)
        return;
    m_blankName = name;
    emit blankNameChanged();
}

bool ProjectsViewModel::createBlank()
{
    const Action action(store(), QString());
    const auto id = ProjectOperations::createBlank(store(), LineText::singleLine(m_blankName.trimmed()));
    if (!id)
        return false;
    setBlankName({});
    ui().selectProject(*id);
    return true;
}

void ProjectsViewModel::useTemplate(const QUuid &projectID)
{
    const Action action(store(), QString());
    if (const auto id = ProjectOperations::createFrom(store(), projectID))
        ui().selectProject(*id);
}

void ProjectsViewModel::refresh(const ChangeSet &)
{
    const auto progress = ProjectOperations::progress(store());
    const QTimeZone zone = clock().timeZone();
    QList<ProjectRow> live;
    QList<ProjectRow> templates;
    for (const Project &project : store().projects())
        (project.isTemplate ? templates : live)
            .append(ProjectRow::of(project, progress.value(project.id), zone));
    m_live.setRows(std::move(live));
    m_templates.setRows(std::move(templates));
    emit shownChanged();
}

bool ProjectsViewModel::reveal(const UndoPlace &place)
{
    for (const auto *const list : {&m_live, &m_templates}) {
        const auto &rows = list->rows();
        const auto row = std::ranges::find(rows, place.record, &ProjectRow::id);
        if (row == rows.end())
            continue;
        emit revealed(int(row - rows.begin()), row->isTemplate);
        return true;
    }
    return false;
}
