#include "views/IslandWindow.h"
#include "platform/Symbols.h"
#include "support/IslandFixture.h"
#include "support/LogCapture.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickItem>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;
using HUDType = HUDContent::HUDType;

namespace {

/// The scene in a window that is not shown, where everything is at its target at once.
class IslandWindowTest : public testing::Test, protected IslandFixture
{
protected:
    static void SetUpTestSuite()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        static int argc = 1;
        static char name[] = "IslandWindowTest";
        static char *argv[] = {name, nullptr};
        application = new QGuiApplication(argc, argv);
    }
    static void TearDownTestSuite() { delete application; }

    void SetUp() override { window.setIsland(island, dashboard); }
    void TearDown() override { window.clearIsland(); }

    QQuickItem *slot(int index) const
    {
        return window.contentItem()->childItems().constFirst()->findChild<QQuickItem *>(
            index == 0 ? u"firstHUD"_s : u"secondHUD"_s);
    }

    static inline QGuiApplication *application = nullptr;
    IslandWindow window;
};

HUDContent sample(HUDType type)
{
    HUDContent content;
    content.type = type;
    content.title = u"Title"_s;
    content.subtitle = u"Subtitle"_s;
    content.icon = QString(symbols::island);
    content.level = 0.4;
    return content;
}

TEST_F(IslandWindowTest, EveryHUDHasAnUncomplainingScene)
{
    LogCapture log;
    for (int type = 0; type <= static_cast<int>(HUDType::FileTray); ++type) {
        hud.show(sample(static_cast<HUDType>(type)), false, 5);
        const QQuickItem *shown = slot(island.shownFace());
        const QQuickItem *other = slot(1 - island.shownFace());
        EXPECT_TRUE(shown->opacity() == 1 && shown->property("overshoot") == false) << type;
        EXPECT_EQ(other->opacity(), 0) << type;
        EXPECT_EQ(shown->size(), content.islandSize()) << type;
        const auto *loader = shown->childItems().value(0);
        ASSERT_TRUE(loader) << type;
        EXPECT_FALSE(loader->childItems().isEmpty()) << type;
    }
    EXPECT_EQ(log.take(), QStringList());
}

TEST_F(IslandWindowTest, IslandHangsFromTheMiddleOfTheTopEdge)
{
    hud.showVolume(40, 5);
    const QQuickItem *silhouette = slot(0)->parentItem()->parentItem();
    const QRectF frame = silhouette->mapRectToScene(silhouette->boundingRect());
    EXPECT_EQ(frame, QRectF((window.width() - 300) / 2.0, 0, 300, 44));
    window.resize(900, 300);
    EXPECT_EQ(silhouette->x(), 300);
}

TEST_F(IslandWindowTest, AssistiveToolsFindTheHUD)
{
    hud.showVolume(40, 5);
    QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(slot(island.shownFace()));
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->role(), QAccessible::AlertMessage);
    EXPECT_EQ(shown->text(QAccessible::Name), u"Volume 40 percent"_s);
}

} // namespace
