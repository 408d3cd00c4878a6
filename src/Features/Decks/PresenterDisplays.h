#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QStringList>
#include <QWindow>

#include <optional>

/// The displays of the desktop, and which of them shows the slide to the audience while the window keeps the
/// notes.
class PresenterDisplays : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The window with the notes.
    Q_PROPERTY(QWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL)
    /// The names of all displays.
    Q_PROPERTY(QStringList names READ names NOTIFY changed FINAL)
    /// Where in that list the display of the window stands.
    Q_PROPERTY(int own READ own NOTIFY changed FINAL)
    /// Where in that list the display for the audience stands; -1 if the window itself is shown to it.
    Q_PROPERTY(int audience READ audience NOTIFY changed FINAL)

public:
    explicit PresenterDisplays(QObject *parent = nullptr);

    QWindow *window() const { return m_window; }
    void setWindow(QWindow *window);
    QStringList names() const { return m_names; }
    int own() const { return m_own; }
    int audience() const { return m_audience; }

    /// Shows the slide on this display from now on; on that of the window, in the window alone.
    Q_INVOKABLE void choose(int display);
    /// Lets the window for the audience fill its display. Does nothing while there is none.
    Q_INVOKABLE void showAudience(QWindow *window) const;

    /// @param chosen the display that the user wants; nothing if none has been chosen yet
    /// @return where it stands among the displays, or else the first that is not the window's own; -1 if the
    /// user wants none or there is none
    static int audienceOf(const QStringList &names, int own, const std::optional<QString> &chosen);

signals:
    void windowChanged();
    void changed();

private:
    void update();

    QPointer<QWindow> m_window;
    QStringList m_names;
    int m_own = -1;
    int m_audience = -1;
    /// Empty for none.
    std::optional<QString> m_chosen;
};
