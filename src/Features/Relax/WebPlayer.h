#pragma once

#include <QQmlEngine>
#include <QUrl>

/// What there is to decide about pages of the web that play on the stage. The web engine comes from a package
/// that a machine may lack, and takes longer to load and more memory than the rest of the program, so it is
/// brought in by `WebVideoView.qml` when the first page is opened. To ask for this object makes ready for
/// that.
class WebPlayer : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Why no page can be shown on this machine, in one line; empty if they can.
    Q_PROPERTY(QString refusal READ refusal CONSTANT FINAL)

public:
    explicit WebPlayer(QObject *parent = nullptr);

    const QString &refusal() const { return m_refusal; }

    /// Whether the page of a link may go to an address, or a frame within the page. The page stays on the
    /// link's host, with or without "www."; frames and pages come from the web, and from nowhere else.
    Q_INVOKABLE static bool mayGoTo(const QUrl &address, const QUrl &link, bool isWholePage);

private:
    QString m_refusal;
};
