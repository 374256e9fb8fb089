#pragma once

#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillmere {

/// A directory of real files under a run loop whose time the test moves. The kernel's file events
/// are there as soon as the file was touched, so nothing here has to sleep.
class RealFiles : public testing::Test
{
protected:
    QString path(const QString &name) const { return directory.filePath(name); }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Replaces the file the way careful editors and sync clients do.
    void replace(const QString &name, const QByteArray &text) const
    {
        const QString fresh = name + QStringLiteral(".new");
        write(fresh, text);
        ASSERT_EQ(::rename(qPrintable(path(fresh)), qPrintable(path(name))), 0);
    }

    QStringList names(const QString &pattern) const
    {
        return QDir(directory.path())
            .entryList({pattern}, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Lets file events come in, and time pass.
    void advance(Duration span)
    {
        const Instant end = loop.now() + span;
        do {
            QCoreApplication::processEvents();
            loop.advance(std::min<Duration>(end - loop.now(), std::chrono::milliseconds(50)));
        } while (loop.now() < end);
    }

    int argc = 1;
    char program[5] = "test";
    char *argv[2] = {program, nullptr};
    QCoreApplication application{argc, argv};
    QTemporaryDir directory;
    ManualRunLoop loop;
    LogCapture log;
};

} // namespace quillmere
