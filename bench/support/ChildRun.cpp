#include "support/ChildRun.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kPause = std::chrono::milliseconds(2); // between two looks at a child
constexpr double kBytesPerUnit = 1024.0;              // of ru_maxrss
constexpr int kCannotStart = 127;
constexpr rlim_t kMostMemory = rlim_t(12) << 30; // bytes: what wants more shall fail, and not the machine
constexpr qint64 kKept = 10000;                  // bytes of what a child writes

double secondsOf(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

void openAs(int target, const QByteArray &path)
{
    const int file = ::creat(path.constData(), 0600);
    if (::dup2(file, target) < 0)
        ::_exit(kCannotStart);
    if (file != target)
        ::close(file);
}

[[noreturn]] void become(const std::vector<char *> &arguments, const QByteArray &out, const QByteArray &err)
{
    const rlimit memory{kMostMemory, kMostMemory};
    ::setrlimit(RLIMIT_AS, &memory);
    openAs(STDOUT_FILENO, out);
    openAs(STDERR_FILENO, err);
    ::execv(arguments.front(), arguments.data());
    ::_exit(kCannotStart);
}

QByteArray startOf(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.read(kKept) : QByteArray();
}

/** Waits for the child, and ends it after the limit. @return its exit code, -1 where it did not end itself */
int waitFor(pid_t child, Clock::time_point start, int limitSeconds, rusage &usage)
{
    int status = 0;
    while (::wait4(child, &status, WNOHANG, &usage) == 0) {
        if (secondsSince(start) > limitSeconds)
            ::kill(child, SIGKILL);
        std::this_thread::sleep_for(kPause);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

ChildCost runChild(const QString &program, const QStringList &arguments, const QString &file, int limitSeconds)
{
    const QByteArray out = QFile::encodeName(file + QStringLiteral(".out"));
    const QByteArray err = QFile::encodeName(file + QStringLiteral(".err"));
    std::vector<QByteArray> texts{QFile::encodeName(program)};
    for (const QString &argument : arguments)
        texts.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    const auto start = Clock::now();
    const pid_t child = ::fork();
    if (child == 0)
        become(pointers, out, err);
    ChildCost cost;
    if (child < 0)
        return cost;
    rusage usage{};
    cost.exitCode = waitFor(child, start, limitSeconds, usage);
    cost.passed = secondsSince(start);
    cost.seconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
    cost.peakBytes = static_cast<double>(usage.ru_maxrss) * kBytesPerUnit;
    cost.out = startOf(out);
    cost.err = startOf(err);
    cost.errBytes = QFileInfo(QFile::decodeName(err)).size();
    return cost;
}

} // namespace bench
