#pragma once

#include "platform/Task.h"
#include "setupwindow/SetupSource.h"

#include <QColor>
#include <QList>
#include <QObject>

#include <memory>
#include <vector>

namespace quillmere {

/// What the setup window shows and does. A choice acts at once, as in the settings; whoever leaves
/// half way keeps what was chosen so far. Main thread only.
class SetupModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int step READ step WRITE setStep NOTIFY stepChanged)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(QList<QObject *> sources READ sources CONSTANT)
    Q_PROPERTY(
        bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(bool dark READ isDark NOTIFY appearanceChanged)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY appearanceChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY appearanceChanged)
    Q_PROPERTY(QColor accent READ accent NOTIFY appearanceChanged)

public:
    enum Step { Welcome, Sources, Needs, Finish, StepCount };

    SetupModel(Platform &platform, SettingsStore &settings);
    ~SetupModel() override;

    int step() const { return step_; }
    void setStep(int step); ///< kept within 0..stepCount - 1
    int stepCount() const { return StepCount; }
    QList<QObject *> sources() const;
    bool launchAtLogin() const;
    void setLaunchAtLogin(bool launch);
    bool isDark() const;
    bool highContrast() const;
    bool reducesMotion() const;
    QColor accent() const;

    /// To the next step, or done after the last one.
    Q_INVOKABLE void advance();
    Q_INVOKABLE void goBack();
    /// Enough: done at any step.
    Q_INVOKABLE void skip();

Q_SIGNALS:
    void stepChanged();
    void launchAtLoginChanged();
    void appearanceChanged();
    void done();

private:
    void refreshNeeds();

    Platform &platform_;
    SettingsStore &settings_;
    std::vector<std::unique_ptr<SetupSource>> sources_;
    int step_ = Welcome;
    Task refreshing_;
    Task appearanceObserver_;
};

} // namespace quillmere
