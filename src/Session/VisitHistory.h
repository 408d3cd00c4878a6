#pragma once

#include "Support/Destination.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

class UIState;
class WorkspaceStore;

/// `Orvel.visits`: the places that the user has been to since the start, and the way back through them. A
/// place whose record is gone is passed over, and found again when the record comes back.
class VisitHistory : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY changed FINAL)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY changed FINAL)

public:
    /// Older visits than these are forgotten.
    static constexpr qsizetype maxVisits = 200;

    /// Both live longer than the history.
    VisitHistory(WorkspaceStore *store, UIState *ui, QObject *parent = nullptr);

    bool canGoBack() const { return indexOfNext(m_back) >= 0; }
    bool canGoForward() const { return indexOfNext(m_forward) >= 0; }
    Q_INVOKABLE void back() { go(m_back, m_forward); }
    Q_INVOKABLE void forward() { go(m_forward, m_back); }

    /// The places visited last, the latest first, each once and without the one that is shown.
    QList<Destination> recentPlaces(qsizetype most) const;

    /// The window tells how it showed a place that was just left, for when the user comes back.
    /// @param place `Destination::text()`
    Q_INVOKABLE void keepView(const QString &place, const QVariant &view);
    /// How the place that is shown now was left; nothing if the user has not come back to it.
    Q_INVOKABLE QVariant takeView();

signals:
    void changed();

private:
    struct Visit {
        Destination place;
        /// What was open in the place.
        QUuid codeDocument;
        QUuid book;
        QUuid deck;
        QVariant view;
    };

    Visit present() const;
    void followSelection();
    void go(QList<Visit> &from, QList<Visit> &to);
    bool exists(const Destination &place) const;
    /// The last of the visits that leads elsewhere; -1 for none.
    qsizetype indexOfNext(const QList<Visit> &visits) const;
    void add(QList<Visit> &visits, const Visit &visit);

    WorkspaceStore *m_store;
    UIState *m_ui;
    Visit m_present;
    QList<Visit> m_back;
    QList<Visit> m_forward;
    QVariant m_view;
    bool m_isGoing = false;
};
