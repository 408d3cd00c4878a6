#include "App/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{
constexpr std::array signalNumbers{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> writeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

// Runs between any two instructions of the program: nothing but `write` is safe here.
void handle(int)
{
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(writeEnd, &byte, 1);
    errno = error;
}

void install(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : signalNumbers)
        sigaction(number, &action, nullptr);
}
} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    Q_ASSERT(writeEnd < 0);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    auto *const notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 64> bytes{};
        while (::read(m_readEnd, bytes.data(), bytes.size()) > 0) {
        }
        emit received();
    });
    install(&handle);
}

TerminationSignals::~TerminationSignals()
{
    if (m_readEnd < 0)
        return;
    install(SIG_DFL);
    ::close(writeEnd.exchange(-1));
    ::close(m_readEnd);
}
