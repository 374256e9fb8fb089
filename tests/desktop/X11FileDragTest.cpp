#include "platform/linux/window/X11DragPasteboard.h"
#include "platform/linux/window/X11GlobalEvents.h"
#include "platform/linux/window/X11PanelWindow.h"
#include "support/LogCapture.h"
#include "support/X11Desktop.h"
#include "views/DropTarget.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class Desktop : public X11Desktop
{
public:
    using X11Desktop::X11Desktop;
    void SetUp() override
    {
        X11Desktop::SetUp();
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
};

[[maybe_unused]] const auto *desktop =
    ::testing::AddGlobalTestEnvironment(new Desktop(QStringLiteral("1280x800x24")));

enum class Content { Text, WebLink, Files, HugeList };

struct Case {
    const char *name;
    bool gtk;
    Content content;
    QSizeF island; ///< hangs at the middle of the top edge
    QPoint aim;
    bool enters = true;
    bool drops = true;
};

class X11FileDragTest : public ::testing::TestWithParam<Case>
{
protected:
    X11FileDragTest()
    {
        canvas.setColor(Qt::transparent);
        target.setParentItem(canvas.contentItem());
        target.setSize({720, 300});
        QObject::connect(&target, &DropTarget::dragEntered, [this] { log += 'E'; });
        QObject::connect(&target, &DropTarget::dragExited, [this] { log += 'X'; });
        QObject::connect(&target, &DropTarget::dropped, [this](const QList<QUrl> &files) {
            log += 'D';
            dropped = files;
        });
        panel.create({.contentSize = {126, 32}});
        panel.setLevelAboveMainMenu(2);
        panel.setTraits({});
        panel.attachContent();
        const QSizeF size = GetParam().island;
        panel.setFrame({QPointF(640 - size.width() / 2, 0), size});
        panel.setVisible(true);
    }

    static void point(std::initializer_list<const char *> arguments)
    {
        QStringList list;
        for (const char *argument : arguments)
            list << QString::fromLatin1(argument);
        XServer::run(QStringLiteral("xdotool"), list);
        QCoreApplication::processEvents();
    }
    static void moveBy(int x, int y)
    {
        XServer::run(QStringLiteral("xdotool"),
                     {QStringLiteral("mousemove_relative"), QStringLiteral("--"),
                      QString::number(x), QString::number(y)});
        eventually([deadline = QDeadlineTimer(20)] { return deadline.hasExpired(); });
    }

    /// The program that drags, once its window is there.
    static std::unique_ptr<ChildProgram> open(const Case &drag)
    {
        static const std::map<Content, QStringList> what{
            {Content::Text, {}},
            {Content::WebLink, {QStringLiteral("https://example.org/a")}},
            {Content::Files,
             {QStringLiteral("file:///tmp/a%20b"), QStringLiteral("https://example.org/"),
              QStringLiteral("file://localhost/c"), QStringLiteral("file://elsewhere/d")}},
            {Content::HugeList, {QStringLiteral("file:///tmp/a-file-with-a-long-name-")}}};
        QStringList arguments{QStringLiteral("file:///a text"),
                              QString::number(drag.content == Content::HugeList ? 20'000 : 1)};
        arguments += what.at(drag.content);
        if (drag.gtk)
            arguments.prepend(QStringLiteral(GTK_DRAG_SOURCE));
        auto source = std::make_unique<ChildProgram>(
            drag.gtk ? QStringLiteral(PYTHON) : QStringLiteral(QT_DRAG_SOURCE), arguments);
        EXPECT_TRUE(eventually(
            [&] { return source->process().readAllStandardOutput().contains("ready"); }));
        return source;
    }

    QQuickWindow canvas;
    X11Observer observer;
    X11PanelWindow panel{canvas, observer};
    X11GlobalEvents events{observer.connection()};
    X11DragPasteboard pasteboard{observer};
    DropTarget target;
    std::string log;
    QList<QUrl> dropped;
};

TEST_P(X11FileDragTest, IsSeenFromItsStartAndLandsOnTheIsland)
{
    const Case &drag = GetParam();
    const bool files = drag.content == Content::Files || drag.content == Content::HugeList;
    const auto source = open(drag);
    LogCapture captured;
    const int before = pasteboard.changeCount();
    int drags = 0;
    int releases = 0;
    std::optional<bool> containsFiles;
    Owner owner;
    auto dragging = events.onLeftMouseDragged([&](QPointF) {
        ++drags;
        if (!containsFiles && pasteboard.changeCount() != before)
            pasteboard.containsFileURLs(owner, [&](bool contains) { containsFiles = contains; });
    });
    auto releasing = events.onLeftMouseUp([&](QPointF) { ++releases; });

    point({"mousemove", "200", "400"});
    moveBy(1, 1);
    EXPECT_EQ(drags, 0) << "the button is not held";
    point({"mousedown", "1"});
    ASSERT_TRUE(eventually([&] {
        moveBy(4, 4);
        return containsFiles.has_value();
    }));
    EXPECT_EQ(containsFiles, files);
    EXPECT_EQ(pasteboard.changeCount(), before + 1);

    point({"mousemove", "640", "400"});
    point({"mousemove", qPrintable(QString::number(drag.aim.x())),
           qPrintable(QString::number(drag.aim.y() - 2))});
    moveBy(0, 1);
    EXPECT_TRUE(!drag.enters || eventually([&] { return log == "E"; })) << log;
    moveBy(0, 1);
    point({"mouseup", "1"});
    EXPECT_TRUE(eventually([&] { return releases == 1; }));
    EXPECT_TRUE(
        eventually([&] { return source->process().readAllStandardOutput().contains("done"); }));
    eventually([&] { return log.empty() || log.back() == 'X'; });
    EXPECT_EQ(log, drag.drops ? "EDX" : drag.enters ? "EX" : "");
    const QList<QUrl> expected{QUrl(QStringLiteral("file:///tmp/a%20b")),
                               QUrl(QStringLiteral("file:///c"))};
    EXPECT_EQ(dropped, drag.drops ? expected : QList<QUrl>());
    const auto refusals = captured.take().filter(QStringLiteral("[DropTarget] refused"));
    EXPECT_EQ(refusals.size(), drag.enters && !drag.drops ? 1 : 0);

    const int whileHeld = drags;
    moveBy(20, 20);
    moveBy(20, 20);
    EXPECT_EQ(drags, whileHeld);
}

constexpr QSizeF pill(126, 32);
constexpr QSizeF expanded(380, 180);
constexpr QPoint corner(460, 170); // of the expanded island, far from the pill

INSTANTIATE_TEST_SUITE_P(
    , X11FileDragTest,
    ::testing::Values(
        Case{"GtkFilesOnThePill", true, Content::Files, pill, {640, 10}},
        Case{"GtkFilesOnTheIsland", true, Content::Files, expanded, corner},
        Case{"GtkFilesBesideThePill", true, Content::Files, pill, corner, false, false},
        Case{"GtkText", true, Content::Text, pill, {640, 10}, false, false},
        Case{"GtkWebLink", true, Content::WebLink, pill, {640, 10}, true, false},
        Case{"GtkHugeList", true, Content::HugeList, pill, {640, 10}, true, false},
        Case{"QtFilesOnThePill", false, Content::Files, pill, {640, 10}},
        Case{"QtFilesOnTheIsland", false, Content::Files, expanded, corner},
        Case{"QtFilesBesideThePill", false, Content::Files, pill, corner, false, false},
        Case{"QtText", false, Content::Text, pill, {640, 10}, false, false}),
    [](const auto &param) { return std::string(param.param.name); });

} // namespace
} // namespace quillmere
