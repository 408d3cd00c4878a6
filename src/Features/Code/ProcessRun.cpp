#include "Features/Code/ProcessRun.h"

#include "Features/Code/OrphanReaper.h"
#include "Features/Code/ProcessSupervisor.h"
#include "Foundation/FileDescriptor.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

namespace
{
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using ProcessSupervisor::Child;
using ProcessSupervisor::Command;
using ProcessSupervisor::Report;

/// A supervisor that does not answer for so long was stopped by what it watches.
constexpr std::chrono::milliseconds supervisorPatience = 3s, patienceWhenCancelled = 500ms;
/// What can't be killed within this time is held by the system itself.
constexpr auto killTimeout = 1s;
/// As many as a full pipe can need.
constexpr int mostLastReads = 32;

/// Texts as the system calls want them.
class TextArray
{
public:
    explicit TextArray(const QStringList &texts)
    {
        for (const QString &text : texts)
            m_texts.push_back(QFile::encodeName(text).toStdString());
        for (std::string &text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
    }
    char *const *data() const { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char *> m_pointers;
};

/// One output of the child, of which a limited part is kept.
class Stream
{
public:
    Stream(RunControl *control, RunControl::Stream name) : m_control(control), m_name(name) {}

    /// Gives the end to write into; not open if there are no files left.
    FileDescriptor open()
    {
        std::array<int, 2> ends{-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return {};
        m_file = FileDescriptor(ends[0]);
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
        return FileDescriptor(ends[1]);
    }

    int number() const { return m_file.number(); }
    bool isAtEnd() const { return !m_file.isOpen(); }

    /// Takes what is there. Returns whether there may be more.
    bool read(qsizetype limit)
    {
        std::array<char, 65536> buffer;
        const ssize_t size = ::read(m_file.number(), buffer.data(), buffer.size());
        if (size < 0)
            return errno == EINTR;
        if (size == 0) {
            m_file.close();
            return false;
        }
        const qsizetype kept = std::min(qsizetype(size), limit - bytes.size());
        bytes.append(buffer.data(), kept);
        isCut = isCut || kept < size;
        if (m_control)
            m_control->append(m_name, QByteArrayView(buffer.data(), kept));
        return true;
    }

    QByteArray bytes;
    bool isCut = false;

private:
    RunControl *m_control;
    RunControl::Stream m_name;
    FileDescriptor m_file;
};

class Run
{
public:
    Run(const ProcessRun::Request &request, int cancelled)
        : m_request(request),
          m_cancelled(cancelled),
          m_stopped(request.control ? request.control->stopped() : -1),
          m_output(request.control, RunControl::output),
          m_errors(request.control, RunControl::errors),
          m_isIsolated(request.isIsolated && ProcessSupervisor::canIsolate())
    {
    }

    ProcessRun::Outcome result()
    {
        std::optional<OrphanReaper> reaper;
        if (!m_isIsolated)
            reaper.emplace();
        if (start()) {
            watch();
            finish();
        }
        m_outcome.output = std::move(m_output.bytes);
        m_outcome.errors = std::move(m_errors.bytes);
        m_outcome.isOutputCut = m_output.isCut;
        m_outcome.isErrorsCut = m_errors.isCut;
        return std::move(m_outcome);
    }

private:
    bool start()
    {
        const FileDescriptor input(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        const FileDescriptor output = m_output.open(), errors = m_errors.open();
        std::array<int, 2> ends{-1, -1};
        if (!input.isOpen() || !output.isOpen() || !errors.isOpen() ||
            ::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
            m_outcome.launchError = errno;
            return false;
        }
        m_channel = FileDescriptor(ends[0]);
        const FileDescriptor theirChannel(ends[1]);

        const TextArray arguments(QStringList(m_request.program) + m_request.arguments);
        const TextArray environment(m_request.environment.toStringList());
        const TextArray folders({m_request.folder, m_request.scratchFolder});
        const Child child{.program = arguments.data()[0],
                          .arguments = arguments.data(),
                          .environment = environment.data(),
                          .folder = folders.data()[0],
                          .scratchFolder = folders.data()[1],
                          .input = input.number(),
                          .output = output.number(),
                          .errors = errors.number(),
                          .channel = theirChannel.number(),
                          .graceMilliseconds = int(m_request.grace.count()),
                          .isIsolated = m_isIsolated};
        m_supervisor = ProcessSupervisor::start(child);
        if (m_supervisor < 0)
            m_outcome.launchError = errno;
        return m_supervisor > 0;
    }

    void watch()
    {
        m_until = Clock::now() + m_request.timeout;
        while (m_channel.isOpen()) {
            if (m_isEnded && (m_isTerminated || (m_output.isAtEnd() && m_errors.isAtEnd())))
                return;
            if (Clock::now() >= m_until) {
                if (m_isEnded)
                    return;
                if (m_isTerminated) {
                    m_patience = {};
                    return;
                }
                m_outcome.isTimedOut = true;
                terminate();
            }
            const bool hadEnded = m_isEnded;
            if (!wait()) {
                m_patience = patienceWhenCancelled;
                return;
            }
            if (m_isEnded && !hadEnded)
                m_until = Clock::now() + m_request.grace;
        }
    }

    void terminate()
    {
        m_isTerminated = true;
        send(Command::terminate);
        m_until = Clock::now() + m_request.grace + supervisorPatience;
    }

    /// Until something comes from the child. Returns false if the run was cancelled.
    bool wait()
    {
        std::array<pollfd, 5> files{pollfd{m_cancelled, POLLIN, 0}, pollfd{m_channel.number(), POLLIN, 0},
                                    pollfd{m_output.number(), POLLIN, 0},
                                    pollfd{m_errors.number(), POLLIN, 0}, pollfd{m_stopped, POLLIN, 0}};
        const auto time = std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(m_until - Clock::now()));
        if (::poll(files.data(), files.size(), int(time.count())) <= 0)
            return true;
        if (files[2].revents)
            m_output.read(m_request.outputLimit);
        if (files[3].revents)
            m_errors.read(m_request.outputLimit);
        if (files[1].revents)
            readReport();
        if (files[4].revents) {
            m_stopped = -1;
            m_outcome.isStopped = !m_outcome.isTimedOut;
            terminate();
        }
        return files[0].revents == 0;
    }

    void readReport()
    {
        Report report;
        if (::recv(m_channel.number(), &report, sizeof report, MSG_DONTWAIT) != ssize_t(sizeof report)) {
            m_channel.close();
            return;
        }
        switch (report.kind) {
        case Report::started:
            m_hasStarted = true;
            break;
        case Report::launchFailed:
            m_outcome.launchError = report.value;
            break;
        case Report::ended:
            m_isEnded = true;
            m_outcome.status = WIFSIGNALED(report.value) ? WTERMSIG(report.value) : WEXITSTATUS(report.value);
        }
    }

    void send(Command command) { ::send(m_channel.number(), &command, 1, MSG_NOSIGNAL); }

    /// Waits until the supervisor has killed what is left and is gone itself, and takes over if it can't.
    void finish()
    {
        if (m_isIsolated) {
            // All of its namespace goes with it.
            ::kill(m_supervisor, SIGKILL);
        } else {
            send(Command::finish);
            const Clock::time_point until = Clock::now() + m_patience;
            while (m_channel.isOpen() && Clock::now() < until) {
                pollfd file{m_channel.number(), POLLIN, 0};
                if (::poll(&file, 1, 100) > 0)
                    readReport();
            }
            ::kill(m_supervisor, SIGKILL);
        }
        const Clock::time_point until = Clock::now() + killTimeout;
        while (::waitpid(m_supervisor, nullptr, WNOHANG) == 0 && Clock::now() < until)
            std::this_thread::sleep_for(1ms);
        if (!m_isIsolated)
            OrphanReaper::killOrphans(Clock::now() + killTimeout);
        while (m_channel.isOpen())
            readReport();
        if (!m_isEnded)
            endWithoutSupervisor();
        // All that can have written is dead; what it wrote lies in the pipes.
        for (Stream *stream : {&m_output, &m_errors})
            for (int i = 0; i < mostLastReads && stream->read(m_request.outputLimit); ++i) {
            }
    }

    /// The supervisor had no files left to start with, or was killed by what it watched.
    void endWithoutSupervisor()
    {
        m_outcome.status = SIGKILL;
        if (!m_hasStarted && !m_outcome.launchError)
            m_outcome.launchError = EMFILE;
    }

    const ProcessRun::Request &m_request;
    int m_cancelled;
    /// -1 once it was heard.
    int m_stopped;
    ProcessRun::Outcome m_outcome;
    Stream m_output;
    Stream m_errors;
    FileDescriptor m_channel;
    pid_t m_supervisor = -1;
    bool m_isIsolated;
    /// How long the supervisor has for its end.
    std::chrono::milliseconds m_patience = supervisorPatience;
    Clock::time_point m_until;
    /// Whether the child was asked to end.
    bool m_isTerminated = false;
    bool m_hasStarted = false;
    bool m_isEnded = false;
};
} // namespace

ProcessRun::Outcome ProcessRun::run(const Request &request, int cancelled)
{
    return Run(request, cancelled).result();
}
