#pragma once

#include "Features/Shell/ScreenTable.h"
#include "Session/ViewModel.h"

#include <QUrl>
#include <QVariantMap>

/// Routes what the user selected to the screen that shows it.
class DetailViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ScreenTable *screens MEMBER m_screens WRITE setScreens REQUIRED FINAL)
    /// The text of the destination that the screen shows.
    Q_PROPERTY(QString place READ place NOTIFY screenChanged FINAL)
    /// "settings" while the settings are shown, so that a change of theme leaves them standing; else "theme-"
    /// and the value of `ThemeRevision`, so that it builds every other screen anew.
    Q_PROPERTY(QString identity READ identity NOTIFY screenChanged FINAL)
    /// The QML file of the screen and the values that its properties begin with.
    Q_PROPERTY(QUrl source READ source NOTIFY screenChanged FINAL)
    Q_PROPERTY(QVariantMap properties READ properties NOTIFY screenChanged FINAL)

public:
    explicit DetailViewModel(QObject *parent = nullptr);

    void setScreens(ScreenTable *screens);

    QString place() const { return m_screen.place.text(); }
    const QString &identity() const { return m_screen.identity; }
    const QUrl &source() const { return m_screen.source; }
    const QVariantMap &properties() const { return m_screen.properties; }

    /// A QML file below the import path.
    static QUrl url(const char *file);

signals:
    /// Another screen is to be shown, or the same one built anew.
    void screenChanged();

private:
    struct Screen {
        QString identity;
        Destination place;
        QUrl source;
        QVariantMap properties;

        bool operator==(const Screen &) const = default;
    };

    void start() override;
    void refresh(const ChangeSet &changes) override;
    Screen screen() const;
    /// The properties of PlaceNotice.qml for a place whose record is gone.
    QVariantMap notFound(const ScreenRecord &record) const;

    ScreenTable *m_screens = nullptr;
    Screen m_screen;
};
