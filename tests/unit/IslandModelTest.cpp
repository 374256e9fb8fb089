#include "app/AppEvents.h"
#include "support/IslandFixture.h"
#include "views/PlainText.h"

#include <gtest/gtest.h>

using namespace quillmere;
using namespace std::chrono_literals;

namespace {

class IslandModelTest : public testing::Test, protected IslandFixture
{
protected:
    void message(const char *title)
    {
        HUDContent content;
        content.title = QString::fromUtf8(title);
        hud.show(content, false, 5);
    }
};

TEST_F(IslandModelTest, ShapeFollowsThePresentation)
{
    const auto shape = [this] {
        return std::tuple(island.targetWidth(), island.targetHeight(), island.cornerRadius());
    };
    EXPECT_EQ(shape(), std::tuple(126, 32, 10));
    hud.showVolume(40, 1.5);
    EXPECT_EQ(shape(), std::tuple(300, 44, 22));
    message("Hello");
    EXPECT_EQ(shape(), std::tuple(380, 76, 24));
    runLoop.advance(6s);
    EXPECT_EQ(shape(), std::tuple(126, 32, 10));
}

TEST_F(IslandModelTest, LevelKeepsItsFaceAndOtherHUDsTakeTheOther)
{
    EXPECT_EQ(island.shownFace(), -1);
    hud.showVolume(40, 5);
    const int volume = island.shownFace();
    EXPECT_EQ(island.contentDelay(), 120); // the silhouette grows first
    hud.showVolume(45, 5);
    EXPECT_EQ(island.shownFace(), volume);
    EXPECT_DOUBLE_EQ(face().level, 0.45);

    hud.showBrightness(80, 5);
    EXPECT_EQ(island.shownFace(), 1 - volume);
    EXPECT_EQ(island.contentDelay(), 0); // it has the right size
    const HUDFace &former = island.face(volume);
    EXPECT_DOUBLE_EQ(former.level, 0.45); // what fades out stays as it was

    message("One");
    const int first = island.shownFace();
    message("Two");
    EXPECT_EQ(island.shownFace(), 1 - first);
    content.dismissHUD();
    EXPECT_EQ(island.shownFace(), -1);
}

TEST_F(IslandModelTest, LevelTellsOnlyOfWhatItChanges)
{
    hud.showVolume(40, 5);
    const bool first = island.shownFace() == 0;
    FaceModel &shown = first ? *island.firstFace() : *island.secondFace();
    QString told;
    const auto listen = [&](FaceModel &face, auto changed, const char *name) {
        QObject::connect(&face, changed, &face, [&told, &face, name] {
            told += QStringLiteral("%1 %2; ").arg(QLatin1StringView(name), face.accessibleText());
        });
    };
    listen(shown, &FaceModel::layoutChanged, "layout");
    listen(shown, &FaceModel::sizeChanged, "size");
    listen(shown, &FaceModel::barColorsChanged, "colors");
    listen(shown, &FaceModel::levelChanged, "level");
    listen(first ? *island.secondFace() : *island.firstFace(), &FaceModel::levelChanged, "other");
    hud.showVolume(45, 5);
    EXPECT_EQ(told, QStringLiteral("level %1; ").arg(island.accessibleText()));
    hud.showVolume(45, 5);
    EXPECT_EQ(told.count(QStringLiteral("level")), 1);
}

TEST_F(IslandModelTest, LevelFaceFollowsTheSettings)
{
    const auto look = [this](double percent) {
        hud.showVolume(percent, 5);
        return face();
    };
    EXPECT_EQ(look(46).figures, QString());
    settings.showVolumePercentage.set(true);
    EXPECT_EQ(face().figures, QStringLiteral("46%")); // at once, while it is on screen
    EXPECT_EQ(look(0).label, QStringLiteral("Mute"));
    settings.soundHideLabel.set(true);
    EXPECT_EQ(face().label, QString());
    EXPECT_EQ(face().figures, QStringLiteral("0%"));

    EXPECT_GT(look(100).symbolSize, look(10).symbolSize);
    settings.soundSymbolSizeMode.set(SymbolSizeMode::Retain);
    EXPECT_EQ(look(100).symbolSize, look(10).symbolSize);

    EXPECT_EQ(face().levelAnimation, 120);
    settings.soundHUDAnimationSpeed.set(AnimationSpeed::Instant);
    EXPECT_EQ(face().levelAnimation, 0);

    const auto white = face().barColors;
    settings.soundHUDColorTheme.set(HUDColorTheme::Decibel);
    EXPECT_TRUE(face().colorsFollowTrack);
    EXPECT_GT(face().barColors.size(), 2);
    settings.soundHUDColorTheme.set(HUDColorTheme::Accent);
    EXPECT_FALSE(face().colorsFollowTrack);
    EXPECT_NE(face().barColors, white);

    const auto headphones = audio.add({.facts = {.formFactor = AudioFormFactor::Headphones}});
    look(10);
    for (const auto type : {SoundDisplayType::Device, SoundDisplayType::Speaker}) {
        settings.soundDisplayType.set(type);
        audio.setDefault(audio.add({})); // says nothing of itself
        EXPECT_EQ(face().symbol, QStringLiteral("speaker.wave.1.fill"));
        audio.setDefault(headphones);
        EXPECT_EQ(face().symbol == QStringLiteral("headphones"), type == SoundDisplayType::Device);
        EXPECT_EQ(look(0).symbol, QStringLiteral("speaker.slash.fill"));
        look(10);
    }

    hud.showBrightness(30, 5);
    EXPECT_EQ(face().figures, QString()); // the sound's settings are not its own
    EXPECT_FALSE(face().glow);
    settings.displayAppearanceStyle.set(HUDAppearanceStyle::Glow);
    EXPECT_TRUE(face().glow);
}

TEST_F(IslandModelTest, TheUsersColourIsTakenWhenItIsWanted)
{
    appearance.accent = AccentColor{.green = 0.8};
    const QColor white = island.accent();
    EXPECT_EQ(white.hslSaturation(), 0);
    settings.useAccentColor.set(true);
    EXPECT_GT(island.accent().green(), island.accent().red());
    settings.useAccentColor.set(false);
    EXPECT_EQ(island.accent(), white);
}

TEST_F(IslandModelTest, SpeaksOfWhatItShows)
{
    EXPECT_EQ(island.accessibleText(), QStringLiteral("Island"));
    hud.showVolume(40, 5);
    EXPECT_EQ(island.accessibleText(), QStringLiteral("Volume 40 percent"));
    hud.showVolume(0, 5);
    EXPECT_EQ(island.accessibleText(), QStringLiteral("Volume muted"));
    hud.showLowBattery(18, 5);
    EXPECT_EQ(island.accessibleText(), QStringLiteral("Low Battery, 18% remaining"));
    EXPECT_EQ(face().figures, QStringLiteral("18%"));
    EXPECT_GT(face().accent.red(), face().accent.green() + 80);
}

TEST_F(IslandModelTest, InputReachesThePanel)
{
    int taps = 0;
    const auto observer = fixture.notifications.observe(events::islandTapped,
                                                        [&taps](const QVariantMap &) { ++taps; });
    island.press();
    island.press();
    EXPECT_EQ(taps, 2);

    double steps = 0;
    panel.onCollapsedScroll = [&steps](double turned) { steps += turned; };
    island.wheel({}, {0, 120}, false); // one notch
    EXPECT_DOUBLE_EQ(steps, 1);
    island.wheel({}, {0, -240}, false);
    EXPECT_DOUBLE_EQ(steps, -1);
}

TEST_F(IslandModelTest, ContentStaysBelowACameraHousing)
{
    screens.list = {
        FakeScreens::notched(QStringLiteral("Built-in"), {0, 0, 1512, 900}, 38, 660, 852)};
    panel.displaysDidChange();
    hud.showVolume(40, 5);
    EXPECT_EQ(island.contentTop(), 38);
    EXPECT_EQ(island.targetHeight() - island.contentTop(), 44);
    EXPECT_EQ(island.cornerRadius(), 22);
}

TEST(PlainTextTest, TakesThePowerOutOfForeignText)
{
    const struct {
        QString text;
        QString shown;
    } cases[] = {
        {QStringLiteral("plain"), QStringLiteral("plain")},
        {QStringLiteral("a\nb\tc\x1b"), QStringLiteral("a b c")},
        {QStringLiteral("\u202egnp.exe\u2066x\u200f"), QStringLiteral("gnp.exex")},
        {QStringLiteral("two\u2028lines"), QStringLiteral("two lines")},
        {QStringLiteral("\u05e9\u05dc\u05d5\u05dd"), QStringLiteral("\u05e9\u05dc\u05d5\u05dd")},
        {QString(100000, u'x'), QString(20, u'x')},
        {QString(19, u'x') + QStringLiteral("\U0001F600"), QString(19, u'x')},
    };
    for (const auto &[text, shown] : cases)
        EXPECT_EQ(plainText(text, 20), shown);
}

} // namespace
