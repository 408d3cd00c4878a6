#pragma once

#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// A folder, or none, to which the menu of a page can move it.
struct FolderChoice {
    Q_GADGET
    Q_PROPERTY(QUuid folderID MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(bool isCurrent MEMBER isCurrent FINAL)

public:
    /// Null for no folder.
    QUuid id;
    QString name;
    /// Whether the page lies there.
    bool isCurrent = false;

    bool operator==(const FolderChoice &) const = default;
};

/// The menu of one page. It shows the page as it is when the menu opens.
class PageMenuViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// What stands for no folder.
    Q_PROPERTY(QString noFolderTitle MEMBER m_noFolderTitle FINAL)
    Q_PROPERTY(QString favoriteTitle READ favoriteTitle NOTIFY opened FINAL)
    Q_PROPERTY(QString favoriteSymbol READ favoriteSymbol NOTIFY opened FINAL)
    Q_PROPERTY(QAbstractItemModel *folders READ folders CONSTANT FINAL)

public:
    explicit PageMenuViewModel(QObject *parent = nullptr) : ViewModel(parent) {}

    QString favoriteTitle() const;
    QString favoriteSymbol() const;
    /// All folders in their order, no folder first.
    QAbstractItemModel *folders() { return &m_folders; }
    const QList<FolderChoice> &folderList() const { return m_folders.rows(); }

    /// To be called before the menu is shown.
    Q_INVOKABLE void open(const QUuid &pageID);
    Q_INVOKABLE void toggleFavorite();
    Q_INVOKABLE void duplicate();
    /// @param folderID null makes the page loose
    Q_INVOKABLE void moveTo(const QUuid &folderID);
    Q_INVOKABLE void remove();

signals:
    void opened();

protected:
    void refresh(const ChangeSet &) override {}

private:
    QString m_noFolderTitle = tr("No folder");
    QUuid m_pageID;
    bool m_isFavorite = false;
    KeyedListModel<FolderChoice> m_folders;
};
