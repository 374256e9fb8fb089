#include "platform/linux/desktop/FolderCloudStore.h"

#include "support/FakeLoginItem.h"
#include "support/MemoryUserDefaults.h"
#include "support/RealFiles.h"

#include "platform/NotificationCenter.h"
#include "settings/SettingsStore.h"

#include <gmock/gmock.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

const QString cloudFile = u"quillmere-settings.json"_s;

/// One machine: its own defaults, and the folder that all share.
struct Machine {
    Machine(RunLoop &loop, const QString &folder, const QVariantMap &values)
        : cloud(loop, local)
    {
        local.values.insert(u"cloudFolder"_s, folder);
        defaults.values = values;
        settings.emplace(defaults, cloud, loginItem, notifications);
    }

    MemoryUserDefaults local;
    MemoryUserDefaults defaults;
    FolderCloudStore cloud;
    FakeLoginItem loginItem;
    NotificationCenter notifications;
    std::optional<SettingsStore> settings;
};

class FolderCloudStoreTest : public RealFiles
{
};

TEST_F(FolderCloudStoreTest, AMachineThatStartsPushesAndTheOthersFollow)
{
    write(cloudFile, R"({"weatherUseFahrenheit": true, "showMediaHUD": true, "future": [1]})");
    Machine first(loop, directory.path(), {{u"showMediaHUD"_s, false}});
    advance(1s);
    EXPECT_FALSE(first.settings->showMediaHUD.get()) << "local wins at the start";
    EXPECT_TRUE(first.settings->weatherUseFahrenheit.get()) << "what is not set here is taken over";
    EXPECT_EQ(read(cloudFile), "{\n    \"weatherUseFahrenheit\": true,\n    \"showMediaHUD\": "
                               "false,\n    \"future\": [\n        1\n    ]\n}\n");

    Machine second(loop, directory.path(), {{u"volumeHUDDuration"_s, 3.0}});
    advance(1s);
    EXPECT_FALSE(second.settings->showMediaHUD.get());
    EXPECT_EQ(first.settings->volumeHUDDuration.get(), 3.0);
    first.settings->volumeHUDDuration.set(4.0);
    advance(1s);
    EXPECT_EQ(second.settings->volumeHUDDuration.get(), 3.0) << "uploaded at the next start only";

    replace(cloudFile, R"({"volumeHUDDuration": 5, "notchWidth": 300})");
    advance(5s);
    EXPECT_EQ(first.settings->volumeHUDDuration.get(), 5.0);
    EXPECT_EQ(second.settings->volumeHUDDuration.get(), 5.0);
    EXPECT_FALSE(second.settings->showMediaHUD.get()) << "gone there, kept here";
    EXPECT_EQ(second.settings->notchWidth.get(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(FolderCloudStoreTest, APushOfWhatIsThereAlreadyWritesNothing)
{
    const QByteArray text = R"({ "showMediaHUD":false })";
    write(cloudFile, text);
    const Machine machine(loop, directory.path(), {{u"showMediaHUD"_s, false}});
    advance(1s);
    EXPECT_EQ(read(cloudFile), text) << "a sync client would carry every rewrite around";
}

TEST_F(FolderCloudStoreTest, WithoutAFolderNothingHappens)
{
    const QVariant folders[] = {{}, u""_s, u"relative"_s, 5, path(u"missing"_s)};
    for (const auto &folder : folders) {
        SCOPED_TRACE(qPrintable(folder.toString()));
        MemoryUserDefaults local;
        local.values.insert(u"cloudFolder"_s, folder);
        FolderCloudStore cloud(loop, local);
        cloud.synchronize();
        cloud.setObject(u"key"_s, 1);
        cloud.synchronize();
        advance(5s);
        cloud.flush();
    }
    EXPECT_THAT(names(u"*"_s), IsEmpty());
    EXPECT_THAT(log.take(), IsEmpty());
}

} // namespace
