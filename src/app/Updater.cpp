#include "app/Updater.h"

#include "platform/UserDefaults.h"

#include <QCoreApplication>
#include <QDebug>

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

const QString feedKey = QStringLiteral("SUFeedURL");
const QString lastCheckKey = QStringLiteral("lastUpdateCheck"); // seconds since 1970

constexpr std::chrono::seconds checkInterval = 24h;
constexpr Duration firstDelay = 2min; // the start of a session is busy enough
constexpr Duration retryDelay = 1h;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Updater)
};

} // namespace

Updater::Updater(RunLoop &runLoop, HttpClient &httpClient, UserDefaults &userDefaults,
                 UserDefaults &localDefaults, Endpoint feed, QString version)
    : runLoop_(runLoop)
    , httpClient_(httpClient)
    , userDefaults_(userDefaults)
    , localDefaults_(localDefaults)
    , feed_(std::move(feed))
    , version_(std::move(version))
{
}

void Updater::startUpdater()
{
    if (feed_.url.isEmpty())
        return;
    const QString address = feed_.url.toString(QUrl::FullyEncoded);
    if (userDefaults_.object(feedKey) != address)
        userDefaults_.setObject(feedKey, address);
    armDailyCheck(firstDelay);
}

void Updater::checkForUpdates()
{
    if (feed_.url.isEmpty()) {
        return runLoop_.post(owner_, [this] {
            if (onFailure)
                onFailure(Words::tr("This Quillmere has no address to look for updates at."));
        });
    }
    isAsked_ = true;
    check();
}

void Updater::armDailyCheck(Duration atLeast)
{
    dailyCheck_ = runLoop_.after(std::max(atLeast, untilDue()), [this] { dailyCheckDue(); });
}

void Updater::dailyCheckDue()
{
    if (untilDue() > Duration::zero())
        return armDailyCheck(firstDelay); // one was asked for meanwhile, or the clock was set back
    armDailyCheck(retryDelay);
    check();
}

Duration Updater::untilDue() const
{
    const auto now =
        std::chrono::floor<std::chrono::seconds>(runLoop_.wallClock()).time_since_epoch();
    const std::chrono::seconds last(localDefaults_.object(lastCheckKey).toLongLong());
    // A time in the future is that of a clock since put right.
    if (last <= 0s || last > now)
        return Duration::zero();
    return checkInterval - std::min<std::chrono::seconds>(now - last, checkInterval);
}

void Updater::check()
{
    if (request_)
        return;
    HttpRequest request{QUrl(userDefaults_.object(feedKey).toString(), QUrl::StrictMode),
                        feed_.isReplaced};
    request.headers = {{"Accept", "application/rss+xml, application/xml;q=0.9"}};
    request_ = httpClient_.send(request, [this](const HttpResult &result) {
        request_ = {};
        answered(result);
    });
}

void Updater::answered(const HttpResult &result)
{
    if (!result)
        return failed(result.error().text);
    if (result->status != 200)
        return failed(QStringLiteral("status %1").arg(result->status));
    const auto updates = parseAppcast(result->body);
    if (!updates)
        return failed(QStringLiteral("the feed ") + updates.error());

    localDefaults_.setObject(lastCheckKey,
                             qint64{std::chrono::floor<std::chrono::seconds>(runLoop_.wallClock())
                                        .time_since_epoch()
                                        .count()});
    armDailyCheck(firstDelay);
    const bool isAsked = std::exchange(isAsked_, false);
    if (const auto update = newestAbove(version_, *updates)) {
        if (onUpdateFound)
            onUpdateFound(*update, isAsked);
    } else if (isAsked && onUpToDate) {
        onUpToDate();
    }
}

void Updater::failed(const QString &reason)
{
    qWarning("[Updater] The check for updates failed: %s", qUtf8Printable(reason));
    if (std::exchange(isAsked_, false) && onFailure)
        onFailure(Words::tr("The update information could not be read."));
}

} // namespace quillmere
