#include "settings/SettingsStore.h"

#include "app/AppEvents.h"
#include "settings/SyncedKeys.h"
#include "support/SettingsFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

enum Mirror { _, S };
enum Kind { Live, Loaded };

struct Expected {
    const char *key;
    SettingType type;
    QVariant defaultValue;
    Mirror mirror;
    Kind kind;
};

const std::vector<Expected> &expectedSettings()
{
    using enum SettingType;
    // clang-format off
    static const std::vector<Expected> all{
    {"syncSettingsViaICloud", Boolean, true, S, Live},
    {"hideInFullscreen", Boolean, true, S, Live},
    {"disableInFullscreen", Boolean, false, S, Live},
    {"displaySelection", Choice, u"main"_s, _, Live},
    {"idleActivityMostRecent", Boolean, false, _, Live},
    {"idleActivityType", Choice, u"playing"_s, _, Live},
    {"hapticFeedback", Boolean, true, S, Live},
    {"expandNotchOnHover", Boolean, false, S, Live},
    {"autoCollapseDelay", Double, 4.0, S, Live},
    {"useAccentColor", Boolean, false, S, Live},
    {"naturalMovement", Boolean, false, S, Live},
    {"islandAppearance", Choice, u"glass"_s, S, Live},
    {"glassTransparency", Double, 0.5, S, Live},
    {"swipeToToggleOpen", Boolean, true, S, Live},
    {"swipeToCycleActivity", Boolean, true, S, Live},
    {"swipeToDismissActivity", Boolean, true, S, Live},
    {"swipeToSkipMedia", Boolean, true, S, Live},
    {"notchWidth", Double, 0.0, _, Live},
    {"notchHeight", Double, 0.0, _, Live},
    {"enableDynamicColors", Boolean, true, S, Live},
    {"hasCompletedOnboarding", Boolean, false, _, Live},
    {"launchAtLogin", Boolean, false, _, Loaded},
    {"hideInMissionControl", Boolean, false, S, Loaded},
    {"hideFromScreenCapture", Boolean, false, S, Loaded},
    {"showBatteryHUD", Boolean, true, S, Live},
    {"batteryHUDDuration", Double, 5.0, S, Live},
    {"notifyOnLowPowerMode", Boolean, true, S, Live},
    {"warnOnLowBattery", Boolean, true, S, Live},
    {"lowBatteryThreshold", Double, 10.0, S, Live},
    {"playSoundOnLowBattery", Boolean, true, S, Live},
    {"hideBatteryLabel", Boolean, false, S, Live},
    {"hideBatteryPercentage", Boolean, false, S, Live},
    {"showBluetoothHUD", Boolean, true, S, Live},
    {"bluetoothHUDDuration", Double, 5.0, S, Live},
    {"warnOnLowBluetoothBattery", Boolean, true, _, Live},
    {"lowBluetoothBatteryThreshold", Double, 20.0, _, Live},
    {"playSoundOnLowBluetoothBattery", Boolean, true, _, Live},
    {"connectivityUse3DModels", Boolean, true, S, Live},
    {"showFocusHUD", Boolean, true, S, Live},
    {"focusHUDDuration", Double, 5.0, S, Live},
    {"playSoundOnSleepFocus", Boolean, false, S, Live},
    {"hideFocusLabel", Boolean, false, S, Live},
    {"focusAllowBattery", Boolean, true, _, Live},
    {"focusAllowConnectivity", Boolean, true, _, Live},
    {"focusAllowDisplay", Boolean, true, _, Live},
    {"focusAllowSound", Boolean, true, _, Live},
    {"showVolumeHUD", Boolean, true, S, Live},
    {"volumeHUDDuration", Double, 1.5, S, Live},
    {"showVolumePercentage", Boolean, false, S, Live},
    {"soundDisplayType", Choice, u"device"_s, _, Live},
    {"soundHUDsEnabled", Boolean, true, S, Live},
    {"soundHUDColorTheme", Choice, u"white"_s, _, Live},
    {"soundHUDAnimationSpeed", Choice, u"fast"_s, _, Live},
    {"volumeScrollEnabled", Boolean, true, S, Live},
    {"soundDisableOvershoot", Boolean, false, S, Live},
    {"soundHideLabel", Boolean, false, _, Live},
    {"soundSymbolSizeMode", Choice, u"scale"_s, _, Live},
    {"showBrightnessHUD", Boolean, true, S, Live},
    {"brightnessHUDDuration", Double, 1.5, S, Live},
    {"showBrightnessPercentage", Boolean, false, S, Live},
    {"displayHUDsEnabled", Boolean, true, S, Live},
    {"displayAppearanceStyle", Choice, u"white"_s, _, Live},
    {"displayAnimationSpeed", Choice, u"fast"_s, _, Live},
    {"displayDisableOvershoot", Boolean, false, S, Live},
    {"displayHideLabel", Boolean, false, _, Live},
    {"displaySymbolSizeMode", Choice, u"scale"_s, _, Live},
    {"showEmailHUD", Boolean, false, S, Live},
    {"emailHUDDuration", Double, 5.0, S, Live},
    {"emailPollInterval", Double, 60.0, _, Live},
    {"showDiscordHUD", Boolean, false, S, Live},
    {"discordHUDDuration", Double, 5.0, S, Live},
    {"discordPollInterval", Double, 5.0, _, Live},
    {"showSlackHUD", Boolean, false, S, Live},
    {"slackHUDDuration", Double, 5.0, S, Live},
    {"slackPollInterval", Double, 5.0, _, Live},
    {"googleClientID", Text, QString(), _, Live},
    {"googleAccountEmail", Text, QString(), _, Live},
    {"showGmailHUD", Boolean, false, S, Live},
    {"showGoogleCalendarHUD", Boolean, false, S, Live},
    {"googlePollInterval", Double, 60.0, _, Live},
    {"googleCalendarAlertMinutes", Double, 5.0, _, Live},
    {"showMediaHUD", Boolean, true, S, Live},
    {"nowPlayingIdleDuration", Double, 3.0, _, Live},
    {"expandedWaveformStyle", Choice, u"gradient"_s, _, Live},
    {"disableCompactWaveform", Boolean, false, _, Live},
    {"compactWaveformStyle", Choice, u"monochrome"_s, _, Live},
    {"disableArtworkFlip", Boolean, false, _, Live},
    {"hideWhileSourceAppActive", Boolean, false, _, Live},
    {"hideMediaTitleExtras", Boolean, false, _, Live},
    {"mediaControlButton", Choice, u"shuffle"_s, _, Live},
    {"nowPlayingSourceAutomatic", Boolean, true, _, Live},
    {"showCalendarHUD", Boolean, true, S, Live},
    {"calendarProvider", Choice, u"apple"_s, _, Live},
    {"timeBeforeCalendarEvent", Double, 15.0, _, Live},
    {"useCalendarColor", Boolean, false, _, Live},
    {"playSoundOnCalendarEvent", Boolean, true, _, Live},
    {"playHourlyChime", Boolean, false, _, Live},
    {"disableActivityDuringEvents", Boolean, false, _, Live},
    {"disableWeatherOnEmptyDay", Boolean, false, _, Live},
    {"alwaysShowMonthView", Boolean, false, _, Live},
    {"notifyWhenTimeToLeave", Boolean, false, _, Live},
    {"showFileTray", Boolean, false, S, Live},
    {"fileTrayMaxItems", Integer, qint64{5}, S, Live},
    {"showWeatherHUD", Boolean, true, S, Live},
    {"weatherUseFahrenheit", Boolean, false, S, Live},
    {"showLockScreenHUD", Boolean, true, S, Live},
    {"lockScreenStyle", Choice, u"glass"_s, _, Live},
    {"lockScreenUseClearArtwork", Boolean, false, _, Live},
    {"lockScreenIdleDuration", Double, 10.0, _, Live},
    {"lockScreenShowVolumeControl", Boolean, false, _, Live},
    {"lockScreenOffsetTuning", Double, 0.0, _, Live},
    {"lockScreenWeather", Boolean, false, _, Live},
    {"lockScreenKeepAwake", Double, 0.0, _, Live},
    {"lockScreenShowOnScreenSaver", Boolean, false, _, Live},
    {"lockScreenPlaySoundOnLock", Boolean, false, _, Live},
    {"lockScreenPlaySoundOnUnlock", Boolean, true, _, Live},
    {"lockScreenAllowBattery", Boolean, true, _, Live},
    {"lockScreenAllowConnectivity", Boolean, true, _, Live},
    {"lockScreenAllowFocus", Boolean, true, _, Live},
    {"lockScreenAllowCalendar", Boolean, false, _, Live},
    {"lockScreenAllowNowPlaying", Boolean, true, _, Live},
    {"enablePomodoro", Boolean, false, S, Live},
    {"pomodoroWorkMinutes", Double, 25.0, S, Loaded},
    {"pomodoroShortBreakMinutes", Double, 5.0, S, Loaded},
    {"pomodoroLongBreakMinutes", Double, 15.0, S, Loaded},
    {"enableCameraMirror", Boolean, false, S, Live},
    {"enableAppShortcuts", Boolean, false, S, Live},
    {"enableQuickNotes", Boolean, false, S, Live},
    {"enableBookmarks", Boolean, false, S, Live},
    {"enableCountdownTimer", Boolean, false, S, Live},
    {"enableReminders", Boolean, false, S, Live},
    {"enableClipboardHistory", Boolean, false, S, Loaded},
    {"showNetworkSpeed", Boolean, false, S, Loaded},
    {"showSystemMonitor", Boolean, true, S, Loaded},
    {"enableClaudeCode", Boolean, false, S, Loaded},
    };
    // clang-format on
    return all;
}

/// Everything the store announces, as "will key" and "did key".
struct Announcements {
    explicit Announcements(SettingsStore &store)
    {
        QObject::connect(&store, &SettingsStore::willChange, &context,
                         [this](const QString &key) { heard.append(u"will "_s + key); });
        QObject::connect(&store, &SettingsStore::didChange, &context,
                         [this](const QString &key) { heard.append(u"did "_s + key); });
    }
    QStringList heard;
    QObject context;
};

int countSyncReports(NotificationCenter &notifications, const std::function<void()> &action)
{
    int count = 0;
    const Task observer = notifications.observe(events::settingsDidSyncFromCloud,
                                                [&](const QVariantMap &) { ++count; });
    action();
    return count;
}

TEST(SettingsStoreTest, AFreshInstallReadsTheDefaultOfEverySetting)
{
    SettingsFixture f;
    const auto &registry = f.settings.registry();
    ASSERT_EQ(registry.settings().size(), expectedSettings().size());
    QStringList synced;
    for (const auto &expected : expectedSettings()) {
        SCOPED_TRACE(expected.key);
        const Setting *setting = registry.find(QLatin1StringView(expected.key));
        ASSERT_NE(setting, nullptr);
        EXPECT_EQ(setting->type(), expected.type);
        EXPECT_EQ(setting->value().metaType(), expected.defaultValue.metaType());
        EXPECT_EQ(setting->value(), expected.defaultValue);
        EXPECT_EQ(setting->isReadThrough(), expected.kind == Live);
        EXPECT_TRUE(setting->isDefault());
        if (expected.mirror == S)
            synced.append(setting->key());
    }
    EXPECT_TRUE(f.defaults.writes.isEmpty()) << "reading must not write";
    QStringList pushed(syncedKeys.begin(), syncedKeys.end());
    EXPECT_EQ(pushed.removeDuplicates(), 0);
    pushed.sort();
    synced.sort();
    EXPECT_EQ(pushed, synced);
}

TEST(SettingsStoreTest, SettingsRegisterInTheOrderOfTheStart)
{
    SettingsFixture f;
    QStringList order;
    for (const auto *setting : f.settings.registry().settings())
        order.append(setting->key());
    const QStringList landmarks{
        u"syncSettingsViaICloud"_s, u"showBatteryHUD"_s,         u"showFocusHUD"_s,
        u"showVolumeHUD"_s,         u"showBrightnessHUD"_s,      u"showEmailHUD"_s,
        u"showBluetoothHUD"_s,      u"showMediaHUD"_s,           u"showCalendarHUD"_s,
        u"showFileTray"_s,          u"showWeatherHUD"_s,         u"showLockScreenHUD"_s,
        u"enablePomodoro"_s,        u"hasCompletedOnboarding"_s, u"launchAtLogin"_s,
        u"hideInMissionControl"_s,  u"hideFromScreenCapture"_s,  u"enableClipboardHistory"_s,
        u"pomodoroWorkMinutes"_s,   u"showNetworkSpeed"_s,       u"enableClaudeCode"_s};
    order.removeIf([&](const QString &key) { return !landmarks.contains(key); });
    EXPECT_EQ(order, landmarks);
}

/// A value of each type that is not the default, as written by the program itself.
QVariant anotherValue(const Setting &setting)
{
    switch (setting.type()) {
    case SettingType::Boolean:
        return !setting.value().toBool();
    case SettingType::Double:
        return setting.value().toDouble() + 0.25;
    case SettingType::Integer:
        return setting.value().toLongLong() + 1;
    case SettingType::Text:
        return u"a text"_s;
    case SettingType::Choice:
        return setting.choices().last() == setting.value().toString() ? setting.choices().first()
                                                                      : setting.choices().last();
    }
    return {};
}

TEST(SettingsStoreTest, EverySettingAnnouncesStoresAndResets)
{
    SettingsFixture f;
    for (auto *setting : f.settings.registry().settings()) {
        SCOPED_TRACE(qPrintable(setting->key()));
        const auto before = setting->value();
        const auto value = anotherValue(*setting);
        Announcements announcements(f.settings);
        const QStringList once{u"will "_s + setting->key(), u"did "_s + setting->key()};

        EXPECT_TRUE(setting->setValue(value));
        EXPECT_EQ(setting->value(), value);
        EXPECT_EQ(f.defaults.values.value(setting->key()), value);
        EXPECT_EQ(f.defaults.values.value(setting->key()).metaType(), value.metaType());
        EXPECT_EQ(announcements.heard, once);
        EXPECT_TRUE(setting->setValue(value));
        EXPECT_EQ(announcements.heard, once) << "an equal value is no change";
        EXPECT_FALSE(setting->setValue(QVariantList{1}));
        EXPECT_EQ(setting->value(), value);

        setting->reset();
        EXPECT_EQ(setting->value(), before);
        EXPECT_EQ(announcements.heard, once + once);
    }
}

TEST(SettingsStoreTest, ObserversCanReadTheOldValueBeforeAndTheNewOneAfter)
{
    SettingsFixture f;
    std::vector<double> seen;
    const auto look = [&](const QString &) {
        seen.push_back(f.settings.volumeHUDDuration.get());
        seen.push_back(f.settings.pomodoroWorkMinutes.get());
    };
    QObject::connect(&f.settings, &SettingsStore::willChange, look);
    QObject::connect(&f.settings, &SettingsStore::didChange, look);
    f.settings.volumeHUDDuration.set(2.5);
    f.settings.pomodoroWorkMinutes.set(30);
    EXPECT_THAT(seen, ElementsAre(1.5, 25, 2.5, 25, 2.5, 25, 2.5, 30));
}

TEST(SettingsStoreTest, StoredValuesReadByType)
{
    const QVariant text7(u"7"_s);
    struct Case {
        const char *key;
        QVariant stored;
        QVariant read;
    };
    const double huge = 9223372036854775808.0;
    const Case cases[] = {
        {"showVolumeHUD", qint64{0}, false},
        {"showVolumeHUD", 0.0, false},
        {"showVolumePercentage", 2.5, true},
        {"showVolumeHUD", u"false"_s, true},
        {"showVolumeHUD", QVariantList{false}, true},
        {"volumeHUDDuration", qint64{2}, 2.0},
        {"volumeHUDDuration", text7, 1.5},
        {"volumeHUDDuration", true, 1.5},
        {"volumeHUDDuration", qQNaN(), 1.5},
        {"fileTrayMaxItems", qint64{7}, qint64{7}},
        {"fileTrayMaxItems", 7.0, qint64{7}},
        {"fileTrayMaxItems", 7.5, qint64{5}},
        {"fileTrayMaxItems", text7, qint64{5}},
        {"fileTrayMaxItems", true, qint64{5}},
        {"fileTrayMaxItems", huge, qint64{5}},
        {"fileTrayMaxItems", -huge, std::numeric_limits<qint64>::min()},
        {"googleClientID", u"id"_s, u"id"_s},
        {"googleClientID", qint64{3}, u""_s},
        {"soundSymbolSizeMode", u"retain"_s, u"retain"_s},
        {"soundSymbolSizeMode", u"Retain"_s, u"scale"_s},
        {"soundSymbolSizeMode", u"unheard"_s, u"scale"_s},
        {"soundSymbolSizeMode", qint64{0}, u"scale"_s},
    };
    SettingsFixture f;
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.key << " = " << qPrintable(c.stored.toString()));
        const QLatin1StringView key(c.key);
        f.defaults.values = {{key, c.stored}};
        EXPECT_EQ(f.settings.registry().find(key)->value(), c.read);
    }
    EXPECT_TRUE(f.defaults.writes.isEmpty());
}

TEST(SettingsStoreTest, OnlyValuesOfTheTypeAreAcceptedFromOutside)
{
    SettingsFixture f;
    const auto accepts = [&](const char *key, const QVariant &value) {
        return f.settings.registry().find(QLatin1StringView(key))->setValue(value);
    };
    EXPECT_FALSE(accepts("showVolumeHUD", 0));
    EXPECT_FALSE(accepts("volumeHUDDuration", true));
    EXPECT_FALSE(accepts("volumeHUDDuration", qInf()));
    EXPECT_FALSE(accepts("volumeHUDDuration", u"2"_s));
    EXPECT_FALSE(accepts("fileTrayMaxItems", 2.5));
    EXPECT_FALSE(accepts("displaySelection", u"left"_s));
    EXPECT_TRUE(f.defaults.values.isEmpty());
    EXPECT_TRUE(accepts("volumeHUDDuration", 2)) << "a script's whole number";
    EXPECT_TRUE(accepts("fileTrayMaxItems", 9.0));
    EXPECT_EQ(f.settings.volumeHUDDuration.get(), 2.0);
    EXPECT_EQ(f.settings.fileTrayMaxItems.get(), 9);
}

TEST(SettingsStoreTest, LoadedSettingsAreReadAtTheStartOnly)
{
    SettingsFixture f;
    f.defaults.changeFromOutside(u"pomodoroWorkMinutes"_s, 50.0);
    EXPECT_EQ(f.settings.pomodoroWorkMinutes.get(), 25.0);
    SettingsStore next(f.defaults, f.cloud, f.loginItem, f.notifications);
    EXPECT_EQ(next.pomodoroWorkMinutes.get(), 50.0);
}

TEST(SettingsStoreTest, OutsideEditsAreAnnouncedForLiveSettingsAlone)
{
    SettingsFixture f;
    Announcements announcements(f.settings);
    f.defaults.changeFromOutside(u"showVolumeHUD"_s, false);
    f.defaults.changeFromOutside(u"showSystemMonitor"_s, false);
    f.defaults.changeFromOutside(u"somebodyElse"_s, 1);
    EXPECT_THAT(announcements.heard, ElementsAre(u"will showVolumeHUD"_s, u"did showVolumeHUD"_s));
    EXPECT_FALSE(f.settings.showVolumeHUD.get());
}

TEST(SettingsStoreTest, LoginItemFollowsThePreference)
{
    SettingsFixture f;
    EXPECT_THAT(f.loginItem.requests, ElementsAre(false)) << "applied at the start";
    f.settings.launchAtLogin.set(true);
    f.settings.launchAtLogin.set(true);
    f.settings.launchAtLogin.set(false);
    EXPECT_THAT(f.loginItem.requests, ElementsAre(false, true, true, false));

    f.defaults.values[u"launchAtLogin"_s] = true;
    const SettingsStore next(f.defaults, f.cloud, f.loginItem, f.notifications);
    EXPECT_TRUE(f.loginItem.isRegistered());
}

TEST(SettingsStoreTest, TheStartPushesLocalValuesInOrder)
{
    SettingsFixture f;
    f.cloud.calls.clear();
    f.cloud.values = {{u"showMediaHUD"_s, false}, {u"showVolumeHUD"_s, true}};
    f.defaults.values = {{u"enableDynamicColors"_s, false},    {u"showVolumeHUD"_s, false},
                         {u"hideFromScreenCapture"_s, true},   {u"hideInFullscreen"_s, u"odd"_s},
                         {u"displaySelection"_s, u"active"_s}, {u"notchWidth"_s, 200.0}};
    const SettingsStore next(f.defaults, f.cloud, f.loginItem, f.notifications);
    EXPECT_THAT(f.cloud.calls,
                ElementsAre(u"synchronize"_s, u"hideInFullscreen"_s, u"hideFromScreenCapture"_s,
                            u"showVolumeHUD"_s, u"enableDynamicColors"_s, u"synchronize"_s));
    EXPECT_EQ(f.cloud.values.value(u"showVolumeHUD"_s), false);
    EXPECT_EQ(f.cloud.values.value(u"showMediaHUD"_s), false) << "absent here is not removed there";
}

TEST(SettingsStoreTest, WithSyncOffTheStartLeavesTheCloudAlone)
{
    SettingsFixture f;
    f.settings.syncSettingsViaICloud.set(false);
    MemoryCloudStore cloud;
    SettingsStore next(f.defaults, cloud, f.loginItem, f.notifications);
    next.syncSettingsViaICloud.set(true);
    EXPECT_TRUE(cloud.calls.isEmpty());
    EXPECT_FALSE(cloud.isObserved()) << "turned on later, it starts with the next launch";
}

TEST(SettingsStoreTest, CloudChangesAreCopiedExceptWhatBelongsToTheMachine)
{
    SettingsFixture f;
    Announcements announcements(f.settings);
    bool wasSyncing = false;
    QObject::connect(&f.settings, &SettingsStore::didChange,
                     [&] { wasSyncing = f.settings.isSyncingFromCloud(); });
    const int reports = countSyncReports(f.notifications, [&] {
        f.cloud.changeFromOutside({{u"notchWidth"_s, 300.0},
                                   {u"notchHeight"_s, 40.0},
                                   {u"displaySelection"_s, u"active"_s},
                                   {u"launchAtLogin"_s, true},
                                   {u"hasCompletedOnboarding"_s, true},
                                   {u"showMediaHUD"_s, false},
                                   {u"showVolumeHUD"_s, true},
                                   {u"showSystemMonitor"_s, false},
                                   {u"fromTheFuture"_s, 3}});
    });
    EXPECT_EQ(reports, 1);
    EXPECT_TRUE(wasSyncing);
    EXPECT_FALSE(f.settings.isSyncingFromCloud());
    EXPECT_EQ(f.defaults.values, (QVariantMap{{u"showMediaHUD"_s, false},
                                              {u"showVolumeHUD"_s, true},
                                              {u"showSystemMonitor"_s, false},
                                              {u"fromTheFuture"_s, 3}}));
    EXPECT_THAT(announcements.heard, ElementsAre(u"will showMediaHUD"_s, u"did showMediaHUD"_s));
    EXPECT_TRUE(f.settings.showSystemMonitor.get()) << "loaded once";
}

TEST(SettingsStoreTest, CloudReportsThatChangeNothing)
{
    SettingsFixture f;
    f.defaults.values[u"showMediaHUD"_s] = false;
    EXPECT_EQ(countSyncReports(f.notifications, [&] { f.cloud.reportChange(std::nullopt); }), 0);
    EXPECT_EQ(countSyncReports(f.notifications,
                               [&] { f.cloud.reportChange(QStringList{u"showMediaHUD"_s}); }),
              1);
    EXPECT_EQ(f.defaults.values.value(u"showMediaHUD"_s), false) << "gone there, kept here";

    f.settings.syncSettingsViaICloud.set(false);
    EXPECT_EQ(countSyncReports(f.notifications,
                               [&] {
                                   f.cloud.changeFromOutside({{u"showMediaHUD"_s, true}});
                               }),
              0);
    EXPECT_EQ(f.defaults.values.value(u"showMediaHUD"_s), false);
}

TEST(SettingsStoreTest, AReportInsideAReportIsIgnored)
{
    SettingsFixture f;
    int reports = 0;
    const Task observer =
        f.notifications.observe(events::settingsDidSyncFromCloud, [&](const QVariantMap &) {
            ++reports;
            f.cloud.changeFromOutside({{u"showVolumeHUD"_s, false}});
        });
    f.cloud.changeFromOutside({{u"showMediaHUD"_s, false}});
    EXPECT_EQ(reports, 1);
    EXPECT_TRUE(f.settings.showVolumeHUD.get());
}

template <class E>
class ChoicesTest : public testing::Test
{
};
using AllChoices =
    testing::Types<DisplaySelection, IdleActivityType, IslandAppearance, WaveformStyle,
                   MediaControlButton, LockScreenStyle, HUDAppearanceStyle, AnimationSpeed,
                   SymbolSizeMode, SoundDisplayType, HUDColorTheme, CalendarProvider, SettingsPage>;
TYPED_TEST_SUITE(ChoicesTest, AllChoices);

TYPED_TEST(ChoicesTest, TextsAreDistinctAndFindTheirCase)
{
    const auto texts = allTexts<TypeParam>();
    ASSERT_EQ(static_cast<std::size_t>(texts.size()), allCases<TypeParam>().size());
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(fromText<TypeParam>(texts[i]), static_cast<TypeParam>(i)) << qPrintable(texts[i]);
    EXPECT_EQ(fromText<TypeParam>(u"unheard"), std::nullopt);
    EXPECT_EQ(fromText<TypeParam>(u""), std::nullopt);
}

TEST(ChoiceTextsTest, CasesCarryTheirTexts)
{
    EXPECT_EQ(toText(DisplaySelection::Active), "active"_L1);
    EXPECT_EQ(toText(IdleActivityType::Duo), "duo"_L1);
    EXPECT_EQ(toText(IslandAppearance::Classic), "classic"_L1);
    EXPECT_EQ(toText(WaveformStyle::Gradient), "gradient"_L1);
    EXPECT_EQ(toText(MediaControlButton::Copy), "copy"_L1);
    EXPECT_EQ(toText(LockScreenStyle::Frosted), "frosted"_L1);
    EXPECT_EQ(toText(HUDAppearanceStyle::Glow), "glow"_L1);
    EXPECT_EQ(toText(AnimationSpeed::Instant), "instant"_L1);
    EXPECT_EQ(toText(SymbolSizeMode::Scale), "scale"_L1);
    EXPECT_EQ(toText(SoundDisplayType::Device), "device"_L1);
    EXPECT_EQ(toText(HUDColorTheme::Decibel), "decibel"_L1);
    EXPECT_EQ(toText(CalendarProvider::Google), "google"_L1);
    EXPECT_EQ(toText(SettingsPage::NowPlaying), "nowPlaying"_L1);
    EXPECT_EQ(toText(SettingsPage::About), "about"_L1);
}

} // namespace
