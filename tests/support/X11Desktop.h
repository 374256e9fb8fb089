#pragma once

#include "support/Eventually.h"
#include "support/X11Inspector.h"
#include "support/XServer.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

namespace quillmere {

/// A private display with a window manager, and this process's application on it, for all tests.
class X11Desktop : public testing::Environment
{
public:
    explicit X11Desktop(QString screen)
        : screen_(std::move(screen))
    {
    }

    void SetUp() override
    {
        qputenv("QT_QPA_PLATFORM", "xcb");
        server_.emplace(screen_);
        windowManager_.emplace(
            QStringLiteral("openbox"),
            QStringList{QStringLiteral("--config-file"), QStringLiteral("/dev/null")});
        application_.emplace(argc_, argv_);
        // A window that is there before its manager would be framed and moved in the middle of a
        // test.
        X11Inspector inspector;
        if (!eventually([&] {
                return !inspector.property(inspector.root(), "_NET_SUPPORTING_WM_CHECK").empty();
            }))
            throw std::runtime_error("no window manager");
    }
    void TearDown() override
    {
        application_.reset();
        windowManager_.reset();
        server_.reset();
    }

private:
    QString screen_;
    int argc_ = 1;
    char name_[5] = "test";
    char *argv_[2] = {name_, nullptr};
    std::optional<XServer> server_;
    std::optional<ChildProgram> windowManager_;
    std::optional<QGuiApplication> application_;
};

} // namespace quillmere
