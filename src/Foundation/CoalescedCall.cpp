#include "Foundation/CoalescedCall.h"

CoalescedCall::CoalescedCall(std::function<void()> call, QObject *parent)
    : QObject(parent), m_call(std::move(call))
{
}

void CoalescedCall::request()
{
    if (m_requested)
        return;
    m_requested = true;
    QMetaObject::invokeMethod(this, &CoalescedCall::flush, Qt::QueuedConnection);
}

void CoalescedCall::flush()
{
    if (!m_requested)
        return;
    m_requested = false;
    m_call();
}
