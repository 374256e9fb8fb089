#include "setupwindow/OnboardingController.h"

#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "settings/SettingsStore.h"
#include "setupwindow/SetupModel.h"
#include "setupwindow/SetupWindow.h"

namespace quillmere {

struct OnboardingController::Setup {
    Setup(Platform &platform, SettingsStore &settings)
        : model(platform, settings)
        , window(model)
    {
    }

    SetupModel model;
    SetupWindow window;
};

OnboardingController::OnboardingController(Platform &platform, SettingsStore &settings)
    : platform_(platform)
    , settings_(settings)
{
}

OnboardingController::~OnboardingController() = default;

void OnboardingController::show()
{
    if (!setup_) {
        setup_ = std::make_unique<Setup>(platform_, settings_);
        setup_->window.onClosed = [this] { complete(); };
        QObject::connect(&setup_->model, &SetupModel::done, &setup_->window,
                         [this] { complete(); });
    }
    setup_->window.present();
}

void OnboardingController::putAway()
{
    setup_.reset();
}

void OnboardingController::complete()
{
    if (!setup_)
        return;
    settings_.hasCompletedOnboarding.set(true);
    left_ = std::move(setup_);
    left_->window.hide();
    platform_.runLoop.post(owner_, [this] {
        left_.reset();
        if (onUnloaded)
            onUnloaded();
    });
}

} // namespace quillmere
