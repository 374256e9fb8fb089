#pragma once

#include <QMutex>
#include <QStringList>

#include <cstdio>

namespace quillmere {

/// Collects what goes to the console log while it lives. One at a time.
class LogCapture
{
public:
    LogCapture()
    {
        current() = this;
        former_ = qInstallMessageHandler(&LogCapture::handle);
    }
    ~LogCapture()
    {
        qInstallMessageHandler(former_);
        current() = nullptr;
    }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// The lines so far, and starts anew.
    QStringList take()
    {
        const QMutexLocker lock(&mutex_);
        return std::exchange(lines_, {});
    }

private:
    static LogCapture *&current()
    {
        static LogCapture *capture = nullptr;
        return capture;
    }

    static void handle(QtMsgType type, const QMessageLogContext &, const QString &line)
    {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(line)); // the last words of the process
        const QMutexLocker lock(&current()->mutex_);
        current()->lines_.append(line);
    }

    QMutex mutex_;
    QStringList lines_;
    QtMessageHandler former_;
};

} // namespace quillmere
