#include "settings/SettingsStore.h"

#include "app/AppEvents.h"
#include "settings/SyncedKeys.h"
#include "support/SettingsFixture.h"

#include <QFile>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

namespace {

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

/// The rows of a table of docs/settings.md by their first cell.
QMap<QString, QStringList> documented(const QString &row)
{
    QFile file(QStringLiteral(QUILLMERE_SETTINGS_DOC));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QMap<QString, QStringList> rows;
    auto matches = QRegularExpression(row, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        rows.insert(match.captured(1), match.capturedTexts().mid(2));
    }
    return rows;
}

TEST(SettingsStoreTest, AFreshInstallIsAsDocumented)
{
    const auto settings = documented(
        uR"row(^\| `(\w+)` \| `?(\w+)`?(.*?) \| "?(.*?)"?(?: \(empty\))? \| ?(S?) +\|)row"_s);
    const auto choices = documented(uR"row(^\| `(\w+)` \| (".*") \|$)row"_s);
    const QStringList types{u"boolean"_s, u"number"_s, u"integer"_s, u"text"_s};
    SettingsFixture f;
    QStringList shared;
    for (const auto *setting : f.settings.registry().settings()) {
        SCOPED_TRACE(qPrintable(setting->key()));
        ASSERT_TRUE(settings.contains(setting->key()));
        const auto row = settings[setting->key()];
        if (setting->type() == SettingType::Choice)
            EXPECT_EQ(u'"' + setting->choices().join(u"\", \""_s) + u'"', choices[row[0]].value(0));
        else
            EXPECT_EQ(row[0], types.value(static_cast<int>(setting->type())));
        EXPECT_EQ(setting->isReadThrough(), !row[1].contains(u"loaded once"_s));
        QVariant value = row[2];
        EXPECT_TRUE(value.convert(setting->value().metaType()));
        EXPECT_EQ(setting->value(), value);
        if (!row[3].isEmpty())
            shared.append(setting->key());
    }
    EXPECT_EQ(f.settings.registry().settings().size(), static_cast<std::size_t>(settings.size()));
    EXPECT_TRUE(f.defaults.writes.isEmpty()) << "reading must not write";
    EXPECT_THAT(shared, UnorderedElementsAreArray(syncedKeys.begin(), syncedKeys.end()));
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

TEST(SettingsStoreTest, StoredValuesReadByTypeAndOnlyThoseOfTheTypeAreAccepted)
{
    enum Verdict { Refused, Accepted };
    struct Case {
        const char *key;
        QVariant value;
        QVariant read;
        Verdict verdict;
    };
    const double huge = 9223372036854775808.0;
    const Case cases[] = {
        {"showVolumeHUD", qint64{0}, false, Refused},
        {"showVolumeHUD", 0.0, false, Refused},
        {"showVolumePercentage", 2.5, true, Refused},
        {"showVolumeHUD", u"false"_s, true, Refused},
        {"showVolumeHUD", QVariantList{false}, true, Refused},
        {"volumeHUDDuration", qint64{2}, 2.0, Accepted},
        {"volumeHUDDuration", u"7"_s, 1.5, Refused},
        {"volumeHUDDuration", true, 1.5, Refused},
        {"volumeHUDDuration", qQNaN(), 1.5, Refused},
        {"volumeHUDDuration", qInf(), 1.5, Refused},
        {"fileTrayMaxItems", 7, qint64{7}, Accepted},
        {"fileTrayMaxItems", 7.0, qint64{7}, Accepted},
        {"fileTrayMaxItems", 7.5, qint64{5}, Refused},
        {"fileTrayMaxItems", u"7"_s, qint64{5}, Refused},
        {"fileTrayMaxItems", true, qint64{5}, Refused},
        {"fileTrayMaxItems", huge, qint64{5}, Refused},
        {"fileTrayMaxItems", -huge, std::numeric_limits<qint64>::min(), Accepted},
        {"googleClientID", u"id"_s, u"id"_s, Accepted},
        {"googleClientID", qint64{3}, u""_s, Refused},
        {"soundSymbolSizeMode", u"retain"_s, u"retain"_s, Accepted},
        {"soundSymbolSizeMode", u"Retain"_s, u"scale"_s, Refused},
        {"soundSymbolSizeMode", qint64{0}, u"scale"_s, Refused},
    };
    SettingsFixture f;
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.key << " = " << qPrintable(c.value.toString()));
        const QString key = QString::fromLatin1(c.key);
        auto *setting = f.settings.registry().find(key);
        f.defaults.values = {{key, c.value}};
        EXPECT_EQ(setting->value(), c.read);
        f.defaults.values.clear();
        EXPECT_EQ(setting->setValue(c.value), c.verdict == Accepted);
        EXPECT_EQ(f.defaults.values.value(key), c.verdict == Accepted ? c.read : QVariant());
    }
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
    f.defaults.changeFromOutside(u"pomodoroWorkMinutes"_s, 50.0);
    EXPECT_EQ(f.settings.pomodoroWorkMinutes.get(), 25.0);
    MemoryCloudStore cloud;
    SettingsStore next(f.defaults, cloud, f.loginItem, f.notifications);
    EXPECT_EQ(next.pomodoroWorkMinutes.get(), 50.0) << "loaded once";
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
    const auto told = [&f](const std::function<void()> &action) {
        return countSyncReports(f.notifications, action);
    };
    EXPECT_EQ(told([&] { f.cloud.reportChange(std::nullopt); }), 0);
    EXPECT_EQ(told([&] { f.cloud.reportChange(QStringList{u"showMediaHUD"_s}); }), 1);
    f.settings.syncSettingsViaICloud.set(false);
    EXPECT_EQ(told([&] { f.cloud.changeFromOutside({{u"showMediaHUD"_s, true}}); }), 0);
    EXPECT_EQ(f.defaults.values.value(u"showMediaHUD"_s), false) << "gone there, kept here";
}

TEST(SettingsStoreTest, AReportInsideAReportIsIgnored)
{
    SettingsFixture f;
    const Task observer =
        f.notifications.observe(events::settingsDidSyncFromCloud, [&](const QVariantMap &) {
            f.cloud.changeFromOutside({{u"showVolumeHUD"_s, false}});
        });
    f.cloud.changeFromOutside({{u"showMediaHUD"_s, false}});
    EXPECT_TRUE(f.settings.showVolumeHUD.get());
}

TEST(ChoicesTest, TextsBelongToTheirCase)
{
    EXPECT_EQ(toText(SettingsPage::NowPlaying), "nowPlaying"_L1);
    EXPECT_EQ(toText(SettingsPage::About), "about"_L1);
    EXPECT_EQ(fromText<WaveformStyle>(u"gradient"), WaveformStyle::Gradient);
    for (const auto *unknown : {u"", u"Gradient", u"unheard"})
        EXPECT_EQ(fromText<WaveformStyle>(QStringView(unknown)), std::nullopt);
}

} // namespace
