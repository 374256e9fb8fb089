#include "platform/linux/audio/PulseConnection.h"

#include <QAbstractEventDispatcher>
#include <QFileInfo>

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration shortestDelay = 250ms;
constexpr Duration longestDelay = 15s;

QString findSocketDirectory()
{
    const QString own = qEnvironmentVariable("PULSE_RUNTIME_PATH");
    return own.isEmpty() ? qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/pulse") : own;
}

void warnWithoutGLib()
{
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    if (dispatcher && !dispatcher->inherits("QEventDispatcherGlib"))
        qWarning("[Audio] The event loop runs without GLib; the sound server will not be heard");
}

PulseProperties describeUs()
{
    PulseProperties properties(pa_proplist_new());
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_NAME, "Quillmere");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ID, "com.quillmere.Quillmere");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ICON_NAME, "com.quillmere.Quillmere");
    return properties;
}

} // namespace

PulseConnection::PulseConnection(RunLoop &runLoop, Callbacks callbacks)
    : runLoop_(runLoop)
    , callbacks_(std::move(callbacks))
    , mainLoop_(pa_glib_mainloop_new(nullptr))
    , delay_(shortestDelay)
    , socketDirectory_(findSocketDirectory())
{
    warnWithoutGLib();
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_,
                     [this] { socketDirectoryChanged(); });
    connect();
}

void PulseConnection::connect()
{
    retry_.cancel();
    context_.reset();
    triedSocketTime_ = socketTime();
    context_.reset(pa_context_new_with_proplist(pa_glib_mainloop_get_api(mainLoop_.get()),
                                                "Quillmere", describeUs().get()));
    if (!context_)
        return retryLater();
    pa_context_set_state_callback(
        context_.get(),
        [](pa_context *, void *self) { static_cast<PulseConnection *>(self)->stateChanged(); },
        this);
    if (pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        retryLater();
    watchSocket(); // the attempt has created the directory if it was missing
}

void PulseConnection::connectIn(Duration delay)
{
    retry_ = runLoop_.after(delay, [this] { connect(); });
}

void PulseConnection::retryLater()
{
    if (retry_)
        return;
    connectIn(delay_);
    delay_ = std::min(2 * delay_, longestDelay);
}

void PulseConnection::stateChanged()
{
    switch (pa_context_get_state(context_.get())) {
    case PA_CONTEXT_READY:
        return becomeReady();
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        return becomeLost();
    default:
        return;
    }
}

void PulseConnection::becomeReady()
{
    ready_ = true;
    delay_ = shortestDelay;
    pa_context_set_subscribe_callback(
        context_.get(),
        [](pa_context *, pa_subscription_event_type_t what, std::uint32_t index, void *self) {
            const auto part = [what](unsigned mask) {
                return static_cast<pa_subscription_event_type_t>(what & mask);
            };
            static_cast<PulseConnection *>(self)->callbacks_.changed(
                {part(PA_SUBSCRIPTION_EVENT_FACILITY_MASK), part(PA_SUBSCRIPTION_EVENT_TYPE_MASK),
                 index});
        },
        this);
    constexpr auto interests = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK |
                                                                   PA_SUBSCRIPTION_MASK_SERVER);
    letRun(pa_context_subscribe(context_.get(), interests, nullptr, nullptr));
    callbacks_.ready(*context_);
}

void PulseConnection::becomeLost()
{
    retryLater();
    if (!std::exchange(ready_, false))
        return;
    qInfo("[Audio] The sound server went away");
    callbacks_.lost();
}

void PulseConnection::watchSocket()
{
    if (watcher_.directories().isEmpty() && QFileInfo::exists(socketDirectory_))
        watcher_.addPath(socketDirectory_);
}

void PulseConnection::socketDirectoryChanged()
{
    // Of all that may happen there, only a socket not tried yet is news.
    const QDateTime time = socketTime();
    if (ready_ || !time.isValid() || time == triedSocketTime_)
        return;
    delay_ = shortestDelay;
    connectIn(Duration::zero());
}

QDateTime PulseConnection::socketTime() const
{
    return QFileInfo(socketDirectory_ + QStringLiteral("/native")).lastModified();
}

} // namespace quillmere
