#include "app/QuillmereApp.h"

#include "app/WeatherReports.h"
#include "platform/UserDefaults.h"

namespace quillmere {

QuillmereApp::QuillmereApp(Platform &platform, const QString &libraryDirectory,
                           const QString &version)
    : platform_(platform)
    , debugLogger_(platform.runLoop, libraryDirectory)
    , debugLogSwitch_(platform.localDefaults, debugLogger_)
    , settings_(platform.userDefaults, platform.cloudStore, platform.loginItem,
                platform.notificationCenter)
    , hudManager_(platform.runLoop, settings_, debugLogger_)
    , appDelegate_(platform, settings_, hudManager_, debugLogger_, version)
{
}

void QuillmereApp::launch(std::function<void()> onTerminate)
{
    appDelegate_.onTerminate = std::move(onTerminate);
    appDelegate_.applicationDidFinishLaunching();
    stateFeed_ = std::make_unique<IslandStateFeed>(
        platform_.statePublisher, hudManager_, *appDelegate_.contentView(),
        *appDelegate_.floatingPanel(), *appDelegate_.claudeCode(),
        appDelegate_.weather()->service(), *appDelegate_.timers());
    remoteActions_ =
        std::make_unique<RemoteActions>(platform_.remoteControl, platform_.notificationCenter,
                                        platform_.webAuthSession, appDelegate_);
}

void QuillmereApp::terminate()
{
    appDelegate_.applicationWillTerminate();
    platform_.userDefaults.flush();
    platform_.localDefaults.flush();
}

} // namespace quillmere
