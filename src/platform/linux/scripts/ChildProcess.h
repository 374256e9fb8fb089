#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

class QProcess;

namespace quillmere {

/// One run of a program that is not trusted to behave: it gets a process group of its own, which
/// ends as a whole with this object, with the program itself, or when it prints too much. It gets
/// no input, nothing of ours that is open, and dies with us should we crash. Nobody waits for it.
/// Main thread only.
class ChildProcess
{
public:
    enum class End {
        Succeeded,
        Failed,     ///< another exit status than 0, or a signal
        TooVerbose, ///< killed, as its output was larger than outputLimit
        NotStarted
    };

    static constexpr qint64 outputLimit = 256LL * 1024;
    static constexpr qint64 errorsLimit = 4LL * 1024; ///< the rest is read and forgotten

    /// `onEnd` is called once, perhaps within the constructor; it may not destroy this object.
    ChildProcess(const QString &program, const QStringList &arguments,
                 std::function<void(End)> onEnd);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    const QByteArray &output() const { return output_; }
    const QByteArray &errors() const { return errors_; }

private:
    void readOutput();
    void readErrors();
    void end(End how);
    void killGroup();

    std::function<void(End)> onEnd_;
    QProcess *process_; // outlives this object until the kernel has reported its end
    int group_ = 0;     // the process group; 0 while there is none
    QByteArray output_;
    QByteArray errors_;
};

} // namespace quillmere
