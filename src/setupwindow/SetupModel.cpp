#include "setupwindow/SetupModel.h"

#include "platform/Appearance.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "settings/SettingsStore.h"
#include "views/WindowTheme.h"

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

// Installing what was missing shows without a way back and forth.
constexpr Duration refreshInterval = 1s;
constexpr Duration refreshTolerance = 250ms;

constexpr QRgb commonAccent = 0xff'0a'84'ff;

} // namespace

SetupModel::SetupModel(Platform &platform, SettingsStore &settings)
    : platform_(platform)
    , settings_(settings)
{
    for (SetupSourceInfo &info : setupSources())
        sources_.push_back(std::make_unique<SetupSource>(platform, settings, std::move(info)));
    appearanceObserver_ = platform.appearance.onChanged([this] { Q_EMIT appearanceChanged(); });
    connect(&settings, &SettingsStore::didChange, this, [this](const QString &key) {
        if (key == settings_.launchAtLogin.key())
            Q_EMIT launchAtLoginChanged();
    });
}

SetupModel::~SetupModel() = default;

void SetupModel::setStep(int step)
{
    step = std::clamp(step, 0, StepCount - 1);
    if (step == step_)
        return;
    step_ = step;
    refreshing_.cancel();
    if (step == Sources || step == Needs) {
        refreshNeeds();
        refreshing_ =
            platform_.runLoop.every(refreshInterval, refreshTolerance, [this] { refreshNeeds(); });
    }
    Q_EMIT stepChanged();
}

QList<QObject *> SetupModel::sources() const
{
    QList<QObject *> all;
    for (const auto &source : sources_)
        all.append(source.get());
    return all;
}

bool SetupModel::launchAtLogin() const
{
    return settings_.launchAtLogin.get();
}

void SetupModel::setLaunchAtLogin(bool launch)
{
    settings_.launchAtLogin.set(launch);
}

bool SetupModel::isDark() const
{
    return isWindowDark(platform_.appearance);
}

bool SetupModel::highContrast() const
{
    return platform_.appearance.highContrast();
}

bool SetupModel::reducesMotion() const
{
    return platform_.appearance.reducesMotion();
}

QColor SetupModel::accent() const
{
    const auto chosen = platform_.appearance.accentColor();
    return chosen ? QColor::fromRgbF(static_cast<float>(chosen->red),
                                     static_cast<float>(chosen->green),
                                     static_cast<float>(chosen->blue))
                  : QColor::fromRgba(commonAccent);
}

void SetupModel::advance()
{
    if (step_ == StepCount - 1)
        Q_EMIT done();
    else
        setStep(step_ + 1);
}

void SetupModel::goBack()
{
    setStep(step_ - 1);
}

void SetupModel::skip()
{
    Q_EMIT done();
}

void SetupModel::refreshNeeds()
{
    for (const auto &source : sources_)
        source->refreshNeed();
}

} // namespace quillmere
