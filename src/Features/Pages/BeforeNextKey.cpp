#include "Features/Pages/BeforeNextKey.h"

#include <QCoreApplication>
#include <QEvent>

BeforeNextKey::BeforeNextKey(std::function<void()> call) : m_call(std::move(call)) {}

void BeforeNextKey::arm()
{
    QCoreApplication::instance()->installEventFilter(this);
}

void BeforeNextKey::disarm()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

bool BeforeNextKey::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        disarm();
        m_call();
    }
    return QObject::eventFilter(object, event);
}
