#include "App/SavePoints.h"

#include <QSemaphore>
#include <QThread>

#include <csignal>
#include <cstdlib>
#include <memory>

using namespace std::chrono_literals;

namespace
{
SavePoints *current = nullptr;
QtMessageHandler handlerBefore = nullptr;
constexpr char connectionLost[] = "The Wayland connection";

void saveOrEnd(WorkspaceStore &store)
{
    // A thread that hangs at a disk would keep the process for as long as the disk does.
    if (!store.saveAtExit())
        std::_Exit(EXIT_FAILURE);
}
} // namespace

SavePoints::SavePoints(WorkspaceStore *store, SystemClock *clock, QGuiApplication *application)
    : m_store(store), m_clock(clock)
{
    connect(application, &QGuiApplication::applicationStateChanged, this,
            &SavePoints::applicationStateChanged);
    // The session goes on to end when this returns.
    connect(
        application, &QGuiApplication::commitDataRequest, this, [this] { m_store->saveNow(); },
        Qt::DirectConnection);
    connect(application, &QCoreApplication::aboutToQuit, this, &SavePoints::saveAtExit);

    // Toolkit and display libraries call `exit` when the display is gone, without a word before.
    static const bool isRegistered = std::atexit([] {
                                         if (current)
                                             current->saveAtExit();
                                     }) == 0;
    if (!isRegistered)
        qWarning("A lost connection to the display will lose the last changes.");
    current = this;
    // On Wayland the toolkit ends the process by `_exit`, which calls nobody. This is all that it says
    // before.
    // Another thread may warn as soon as the handler stands, so the one before is asked for first.
    handlerBefore = qInstallMessageHandler(nullptr);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &message) {
        handlerBefore(type, context, message);
        if (current && message.startsWith(QLatin1String(connectionLost)))
            current->saveAtExit();
    });
}

SavePoints::~SavePoints()
{
    qInstallMessageHandler(handlerBefore);
    current = nullptr;
}

void SavePoints::surviveFailedWrites()
{
    // A handler that does nothing, rather than SIG_IGN, which the processes started would inherit.
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : {SIGPIPE, SIGXFSZ})
        sigaction(number, &action, nullptr);
}

void SavePoints::applicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive)
        m_clock->check();
    else
        m_store->saveSoon();
}

void SavePoints::saveAtExit()
{
    if (QThread::currentThread() == thread()) {
        saveOrEnd(*m_store);
        return;
    }
    // The thread that draws may be the first to notice. The workspace belongs to the main thread, which goes
    // on meanwhile, or is about to notice as well.
    static constexpr auto patience = 5s;
    const auto saved = std::make_shared<QSemaphore>();
    QMetaObject::invokeMethod(m_store, [store = m_store, saved] {
        saveOrEnd(*store);
        saved->release();
    });
    saved->tryAcquire(1, patience / 1ms);
}
