#include "platform/linux/scripts/ChildProcess.h"

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <csignal>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <unistd.h>
#include <utility>

namespace quillmere {

namespace {

/// Runs between fork and exec, where only async-signal-safe calls are allowed.
void isolate(pid_t parent)
{
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(1); // it died before it could be watched
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
}

} // namespace

ChildProcess::ChildProcess(const QString &program, const QStringList &arguments,
                           std::function<void(End)> onEnd)
    : onEnd_(std::move(onEnd))
    , process_(new QProcess) // without a parent, as destroying one that runs would wait
{
    process_->setProgram(program);
    process_->setArguments(arguments);
    process_->setWorkingDirectory(QDir::home().exists() ? QDir::homePath() : QDir::rootPath());
    process_->setStandardInputFile(QProcess::nullDevice());
    process_->setChildProcessModifier([parent = ::getpid()] { isolate(parent); });
    QObject::connect(process_, &QProcess::readyReadStandardOutput, process_,
                     [this] { readOutput(); });
    QObject::connect(process_, &QProcess::readyReadStandardError, process_,
                     [this] { readErrors(); });
    QObject::connect(process_, &QProcess::errorOccurred, process_, [this](auto error) {
        if (error == QProcess::FailedToStart)
            end(End::NotStarted);
    });
    QObject::connect(process_, &QProcess::finished, process_, [this](int code, auto status) {
        readOutput();
        readErrors();
        end(status == QProcess::NormalExit && code == 0 ? End::Succeeded : End::Failed);
    });
    process_->start(QIODevice::ReadOnly);
    group_ = static_cast<int>(process_->processId());
    ::setpgid(group_, group_); // whoever is first: killing must not depend on the child's progress
}

ChildProcess::~ChildProcess()
{
    process_->disconnect();
    killGroup();
    if (process_->state() == QProcess::NotRunning)
        process_->deleteLater();
    QObject::connect(process_, &QProcess::stateChanged, process_, [process = process_](auto state) {
        if (state == QProcess::NotRunning)
            process->deleteLater();
    });
}

void ChildProcess::readOutput()
{
    output_ += process_->readAllStandardOutput();
    if (output_.size() > outputLimit)
        end(End::TooVerbose);
}

void ChildProcess::readErrors()
{
    const QByteArray more = process_->readAllStandardError();
    errors_ += more.left(std::max<qint64>(0, errorsLimit - errors_.size()));
}

void ChildProcess::end(End how)
{
    const auto onEnd = std::exchange(onEnd_, nullptr);
    if (!onEnd)
        return;
    killGroup();
    onEnd(how);
}

void ChildProcess::killGroup()
{
    if (const int group = std::exchange(group_, 0); group > 0)
        ::kill(-group, SIGKILL);
}

} // namespace quillmere
