#pragma once

#include "Store/WorkspaceStore.h"

#include <QtQml/qqmlregistration.h>

/// What the editor of one page shows and does.
class PageEditorViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(QUuid pageID READ pageID WRITE setPageID NOTIFY pageIDChanged REQUIRED FINAL)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)

public:
    using QObject::QObject;

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    QUuid pageID() const { return m_pageID; }
    void setPageID(const QUuid &pageID);
    const QString &title() const { return m_title; }

signals:
    void storeChanged();
    void pageIDChanged();
    void titleChanged();

private:
    void refresh();

    WorkspaceStore *m_store = nullptr;
    QUuid m_pageID;
    QString m_title;
};
