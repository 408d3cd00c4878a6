#pragma once

#include "Features/Projects/ProjectRow.h"
#include "Features/Projects/TemplateLine.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the screen of all projects shows, and the sheet for a new one.
class ProjectsViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// `ProjectRow`s.
    Q_PROPERTY(QAbstractItemModel *live READ live CONSTANT FINAL)
    /// `ProjectRow`s of the projects kept as templates.
    Q_PROPERTY(QAbstractItemModel *templates READ templates CONSTANT FINAL)
    Q_PROPERTY(QList<Choice> statuses READ statuses CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY shownChanged FINAL)

    /// `TemplateLine`s of the templates that the program brings.
    Q_PROPERTY(QAbstractItemModel *builtInTemplates READ builtInTemplates CONSTANT FINAL)
    Q_PROPERTY(QString blankName READ blankName WRITE setBlankName NOTIFY blankNameChanged FINAL)
    /// Whether the name is more than blanks.
    Q_PROPERTY(bool canCreateBlank READ canCreateBlank NOTIFY blankNameChanged FINAL)

public:
    explicit ProjectsViewModel(QObject *parent = nullptr);

    QAbstractItemModel *live() { return &m_live; }
    QAbstractItemModel *templates() { return &m_templates; }
    static QList<Choice> statuses() { return Choice::all<ProjectStatus>(); }
    bool isEmpty() const { return m_live.rows().isEmpty(); }

    QAbstractItemModel *builtInTemplates() { return &m_builtInTemplates; }
    /// Makes a project of a built-in template and opens it; an unknown one does nothing.
    Q_INVOKABLE void create(const QString &templateID);
    const QString &blankName() const { return m_blankName; }
    void setBlankName(const QString &name);
    bool canCreateBlank() const { return !m_blankName.trimmed().isEmpty(); }
    /// Makes an empty project and opens it; false for a blank name.
    Q_INVOKABLE bool createBlank();
    /// Makes a project of one that is kept as a template and opens it.
    Q_INVOKABLE void useTemplate(const QUuid &projectID);

signals:
    void shownChanged();
    void blankNameChanged();
    /// The card with this index is where a step was undone.
    void revealed(int card, bool isTemplate);

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    KeyedListModel<ProjectRow> m_live;
    KeyedListModel<ProjectRow> m_templates;
    KeyedListModel<TemplateLine> m_builtInTemplates;
    QString m_blankName;
};
