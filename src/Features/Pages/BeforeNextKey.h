#pragma once

#include <QObject>

#include <functional>

/// Makes a call before the next key is delivered. Keys that are typed fast come in one batch, in the middle
/// of which nothing is done yet that was put off to the end of the turn.
class BeforeNextKey : public QObject
{
    Q_OBJECT

public:
    explicit BeforeNextKey(std::function<void()> call);

    void arm();
    void disarm();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    std::function<void()> m_call;
};
