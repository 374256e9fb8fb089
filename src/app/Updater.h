#pragma once

#include "app/Appcast.h"
#include "platform/Endpoints.h"
#include "platform/HttpClient.h"
#include "platform/RunLoop.h"

#include <functional>

namespace quillmere {

class UserDefaults;

/// Looks for new versions in the program's feed: once a day by itself, and when asked. It only
/// tells of a new version and where its page is; it never downloads or runs one. A build without a
/// feed never looks. Main thread only.
class Updater
{
public:
    /// `localDefaults` remembers the time of the last check; `version` is the running one.
    Updater(RunLoop &runLoop, HttpClient &httpClient, UserDefaults &userDefaults,
            UserDefaults &localDefaults, Endpoint feed, QString version);

    /// Writes the feed's address to the user defaults, where later checks read it, and begins the
    /// daily checks, the first one not before two minutes have passed.
    void startUpdater();

    /// Checks now and tells the outcome in any case.
    void checkForUpdates();

    std::function<void(const Update &update, bool wasAsked)> onUpdateFound;
    std::function<void()> onUpToDate;                   ///< only when asked
    std::function<void(const QString &text)> onFailure; ///< only when asked

private:
    void armDailyCheck(Duration atLeast);
    void dailyCheckDue();
    Duration untilDue() const;
    void check();
    void answered(const HttpResult &result);
    void failed(const QString &reason);

    RunLoop &runLoop_;
    HttpClient &httpClient_;
    UserDefaults &userDefaults_;
    UserDefaults &localDefaults_;
    Endpoint feed_;
    QString version_;
    bool isAsked_ = false; ///< someone waits for the outcome of the check under way
    Task dailyCheck_;
    Task request_;
    Owner owner_;
};

} // namespace quillmere
