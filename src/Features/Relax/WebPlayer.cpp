#include "Features/Relax/WebPlayer.h"

#include <QCoreApplication>
#include <QOpenGLContext>

#include <cerrno>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// Exported by the toolkit for the web engine, without a header.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);

namespace
{
/// Whether a process may shut itself in as the web engine's sandbox does. The engine ends the program if not.
bool canShutIn()
{
    const pid_t child = ::fork();
    if (child == 0) {
        // The second step needs the rights that some systems withhold from the first one's result.
        const bool isIn = ::unshare(CLONE_NEWUSER) == 0 && ::unshare(CLONE_NEWNET | CLONE_NEWPID) == 0;
        ::_exit(isIn ? 0 : 1);
    }
    int status = 1;
    pid_t ended = -1;
    do {
        ended = child > 0 ? ::waitpid(child, &status, 0) : -1;
    } while (ended < 0 && child > 0 && errno == EINTR);
    return ended == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

QString findRefusal()
{
    if (::geteuid() == 0)
        return WebPlayer::tr(
            "The web player keeps to its sandbox, which it can't do for the system administrator.");
    if (!canShutIn())
        return WebPlayer::tr("The web player keeps to its sandbox, which this machine doesn't allow.");
    return {};
}

QString hostOf(const QUrl &url)
{
    const QString host = url.host().toLower();
    return host.startsWith("www."_L1) ? host.sliced(4) : host;
}
} // namespace

WebPlayer::WebPlayer(QObject *parent) : QObject(parent), m_refusal(findRefusal())
{
    // These variables would turn the sandbox off.
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    qunsetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    // The engine needs one that stays until the end of the program. To have the toolkit make it at the start
    // would take 60 MB on machines that draw without a graphics card.
    if (m_refusal.isEmpty() && !QOpenGLContext::globalShareContext()) {
        auto *const context = new QOpenGLContext;
        context->create();
        qt_gl_set_global_share_context(context);
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    }
}

bool WebPlayer::mayGoTo(const QUrl &address, const QUrl &link, bool isWholePage)
{
    const QString scheme = address.scheme();
    if (!isWholePage && (scheme == "about"_L1 || scheme == "blob"_L1 || scheme == "data"_L1))
        return true;
    if (scheme != "https"_L1 && scheme != "http"_L1)
        return false;
    return !isWholePage || hostOf(address) == hostOf(link);
}
