#pragma once

#include "Features/Relax/ScenePainter.h"

#include <QElapsedTimer>
#include <QQuickPaintedItem>
#include <QTimer>

/// Shows an ambient scene, thirty pictures a second while it plays and is seen, and none otherwise.
class AmbientScene : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Raw text of the `RelaxScene`.
    Q_PROPERTY(QString scene READ scene WRITE setScene NOTIFY sceneChanged FINAL)
    Q_PROPERTY(bool playing READ isPlaying WRITE setPlaying NOTIFY playingChanged FINAL)
    /// The moment that is shown; it goes on while the scene plays.
    Q_PROPERTY(double seconds READ seconds WRITE setSeconds NOTIFY secondsChanged FINAL)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)
    /// Shows it in the shades of paper.
    Q_PROPERTY(bool paper READ isPaper WRITE setPaper NOTIFY paperChanged FINAL)

public:
    explicit AmbientScene(QQuickItem *parent = nullptr);

    QString scene() const { return enumRawText(m_scene); }
    /// Unknown texts are ignored.
    void setScene(const QString &scene);
    bool isPlaying() const { return m_isPlaying; }
    void setPlaying(bool playing);
    double seconds() const { return m_seconds; }
    void setSeconds(double seconds);
    double radius() const { return m_radius; }
    void setRadius(double radius);
    bool isPaper() const { return m_isPaper; }
    void setPaper(bool paper);

    void paint(QPainter *painter) override;

signals:
    void sceneChanged();
    void playingChanged();
    void secondsChanged();
    void radiusChanged();
    void paperChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void advance();
    void runOrRest();
    void paintPaper(QPainter &painter, QSize size);
    void cutCorners(QPainter &painter) const;

    ScenePainter m_painter;
    RelaxScene m_scene = RelaxScene::aurora;
    bool m_isPlaying = false;
    bool m_isPaper = false;
    double m_seconds = 0;
    double m_radius = 0;
    QTimer m_frames;
    QElapsedTimer m_sinceFrame;
};
