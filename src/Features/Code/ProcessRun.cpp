#include "Features/Code/ProcessRun.h"

#include "Features/Code/FileDescriptor.h"
#include "Features/Code/ProcessSupervisor.h"

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
#include <vector>

namespace
{
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using ProcessSupervisor::Child;
using ProcessSupervisor::Command;
using ProcessSupervisor::Report;

/// What can't be killed within this time, since the system itself holds it, is left to the supervisor alone.
constexpr auto longestCleanup = 5s;
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
        return true;
    }

    QByteArray bytes;
    bool isCut = false;

private:
    FileDescriptor m_file;
};

class Run
{
public:
    Run(const ProcessRun::Request &request, int cancelled) : m_request(request), m_cancelled(cancelled) {}

    ProcessRun::Outcome result()
    {
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
                          .graceMilliseconds = int(m_request.grace.count())};

        // The program's own signal handlers must not run in the fork.
        sigset_t all, before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        m_supervisor = _Fork();
        if (m_supervisor == 0)
            ProcessSupervisor::supervise(child);
        const int failure = errno;
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
        if (m_supervisor < 0)
            m_outcome.launchError = failure;
        return m_supervisor > 0;
    }

    void watch()
    {
        Clock::time_point until = Clock::now() + m_request.timeout;
        while (m_channel.isOpen()) {
            if (m_isEnded && (m_outcome.isTimedOut || (m_output.isAtEnd() && m_errors.isAtEnd())))
                return;
            if (Clock::now() >= until) {
                if (m_isEnded)
                    return;
                m_outcome.isTimedOut = true;
                send(Command::terminate);
                until = Clock::time_point::max();
            }
            const bool hadEnded = m_isEnded;
            if (!wait(until))
                return;
            if (m_isEnded && !hadEnded)
                until = Clock::now() + m_request.grace;
        }
    }

    /// Until something comes from the child. Returns false if the run was cancelled.
    bool wait(Clock::time_point until)
    {
        std::array<pollfd, 4> files{pollfd{m_cancelled, POLLIN, 0}, pollfd{m_channel.number(), POLLIN, 0},
                                    pollfd{m_output.number(), POLLIN, 0},
                                    pollfd{m_errors.number(), POLLIN, 0}};
        int milliseconds = -1;
        if (until != Clock::time_point::max())
            milliseconds = int(
                std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now())).count());
        if (::poll(files.data(), files.size(), milliseconds) <= 0)
            return true;
        if (files[2].revents)
            m_output.read(m_request.outputLimit);
        if (files[3].revents)
            m_errors.read(m_request.outputLimit);
        if (files[1].revents)
            readReport();
        return files[0].revents == 0;
    }

    void readReport()
    {
        Report report;
        if (::recv(m_channel.number(), &report, sizeof report, 0) != ssize_t(sizeof report)) {
            m_channel.close();
            return;
        }
        switch (report.kind) {
        case Report::started:
            m_child = report.value;
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

    /// Waits until the supervisor has killed what is left and is gone itself.
    void finish()
    {
        send(Command::finish);
        const Clock::time_point until = Clock::now() + longestCleanup;
        while (m_channel.isOpen() && Clock::now() < until) {
            pollfd file{m_channel.number(), POLLIN, 0};
            if (::poll(&file, 1, 100) > 0)
                readReport();
        }
        if (!m_channel.isOpen()) {
            int status = 0;
            while (::waitpid(m_supervisor, &status, 0) < 0 && errno == EINTR) {
            }
            if (!m_isEnded)
                endWithoutSupervisor();
        }
        // All that can have written is dead; what it wrote lies in the pipes.
        for (Stream *stream : {&m_output, &m_errors})
            for (int i = 0; i < mostLastReads && stream->read(m_request.outputLimit); ++i) {
            }
    }

    /// The supervisor had no files left to start with, or the child has killed it.
    void endWithoutSupervisor()
    {
        m_outcome.status = SIGKILL;
        if (m_child > 0)
            ::kill(-m_child, SIGKILL);
        else if (!m_outcome.launchError)
            m_outcome.launchError = EMFILE;
    }

    const ProcessRun::Request &m_request;
    int m_cancelled;
    ProcessRun::Outcome m_outcome;
    Stream m_output;
    Stream m_errors;
    FileDescriptor m_channel;
    pid_t m_supervisor = -1;
    pid_t m_child = -1;
    bool m_isEnded = false;
};
} // namespace

ProcessRun::Outcome ProcessRun::run(const Request &request, int cancelled)
{
    return Run(request, cancelled).result();
}
