#include "platform/linux/alerts/CanberraSound.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDebug>

#include <canberra.h>

#include <array>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration longestSound = 30s;

/// The names of a sound, the best first. Not every theme has every name.
std::array<const char *, 2> namesOf(Sound sound)
{
    switch (sound) {
    case Sound::Beep:
        return {"bell-window-system", "bell"};
    case Sound::Glass:
        return {"alarm-clock-elapsed", "complete"};
    case Sound::Tink:
        return {"message", "dialog-information"};
    case Sound::LowBattery:
        return {"battery-caution", "dialog-warning"};
    }
    return {"bell", "bell"};
}

/// The user or the theme wants it so, and another connection would not change that.
bool isFinal(int result)
{
    return result == CA_SUCCESS || result == CA_ERROR_NOTFOUND || result == CA_ERROR_DISABLED;
}

} // namespace

class CanberraSound::Player
{
public:
    void play(Sound sound)
    {
        int result = playNamed(sound);
        if (!isFinal(result)) { // the sound server may have been restarted
            context_.reset();
            result = playNamed(sound);
        }
        if (result != CA_SUCCESS)
            qWarning("[Sound] %s cannot be played: %s", namesOf(sound).back(), ca_strerror(result));
    }

    void disconnect() { context_.reset(); }

private:
    struct Destroy {
        void operator()(ca_context *context) const { ca_context_destroy(context); }
    };

    int connect()
    {
        ca_context *context = nullptr;
        const int result = ca_context_create(&context);
        context_.reset(context);
        if (result != CA_SUCCESS)
            return result;
        return ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Quillmere",
                                       CA_PROP_APPLICATION_ID, bus::serviceName.latin1(), nullptr);
    }

    int playNamed(Sound sound)
    {
        if (!context_) {
            if (const int result = connect(); result != CA_SUCCESS)
                return result;
        }
        int result = CA_ERROR_NOTFOUND;
        for (const char *name : namesOf(sound)) {
            if (result == CA_ERROR_NOTFOUND)
                result = ca_context_play(context_.get(), 0, CA_PROP_EVENT_ID, name,
                                         CA_PROP_EVENT_DESCRIPTION, name, CA_PROP_MEDIA_ROLE,
                                         "event", nullptr);
        }
        return result;
    }

    std::unique_ptr<ca_context, Destroy> context_;
};

CanberraSound::CanberraSound(RunLoop &runLoop)
    : runLoop_(runLoop)
    , player_(std::make_shared<Player>())
    , queue_(runLoop.makeSerialQueue(QStringLiteral("sounds")))
{
}

CanberraSound::~CanberraSound() = default;

void CanberraSound::play(Sound sound)
{
    queue_->async([player = player_, sound] { player->play(sound); });
    disconnect_ = runLoop_.after(
        longestSound, [this] { queue_->async([player = player_] { player->disconnect(); }); });
}

} // namespace quillmere
