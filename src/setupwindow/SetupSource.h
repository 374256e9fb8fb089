#pragma once

#include "platform/Owner.h"
#include "setupwindow/SetupNeeds.h"

#include <QColor>
#include <QObject>
#include <QStringList>

#include <vector>

namespace quillmere {

class SettingsStore;
class Setting;

/// What the island can tell of, as it stands in the table of all.
struct SetupSourceInfo {
    const char *title; ///< translated in this class
    QLatin1StringView symbol;
    QRgb color;
    QStringList keys; ///< the settings that one switch stands for
    SetupNeed (*need)(const Platform &platform);
    SetupNeed (*needOnDisk)(const UserFiles &files) = nullptr; ///< instead, in the background
};

/// All of them, in the order in which they are offered.
std::vector<SetupSourceInfo> setupSources();

/// One switch of the setup window: on while any of its settings is. Main thread only.
class SetupSource : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(QColor color READ color CONSTANT)
    Q_PROPERTY(bool isOn READ isOn WRITE setOn NOTIFY isOnChanged)
    Q_PROPERTY(QString note READ note NOTIFY needChanged)
    Q_PROPERTY(bool isAbsent READ isAbsent NOTIFY needChanged)
    Q_PROPERTY(QString need READ need NOTIFY needChanged)
    Q_PROPERTY(bool isReady READ isReady NOTIFY needChanged)
    Q_PROPERTY(bool isMissing READ isMissing NOTIFY needChanged)

public:
    SetupSource(const Platform &platform, SettingsStore &settings, SetupSourceInfo info);

    QString title() const;
    QString symbol() const { return info_.symbol; }
    QColor color() const { return QColor::fromRgb(info_.color); }
    bool isOn() const { return isOn_; }
    void setOn(bool on);
    /// What has to be known before it is switched on; empty: nothing.
    QString note() const { return info_.needOnDisk ? need_.text : QString(); }
    QString need() const { return need_.text; }
    bool isReady() const { return need_.state == SetupNeed::State::Ready; }
    bool isMissing() const { return need_.state == SetupNeed::State::Missing || isAbsent(); }
    /// There is no use in switching it on.
    bool isAbsent() const { return need_.state == SetupNeed::State::Absent; }

    /// Looks again at what the machine has.
    void refreshNeed();

Q_SIGNALS:
    void isOnChanged();
    void needChanged();

private:
    void readSettings();
    void take(const SetupNeed &need);

    const Platform &platform_;
    const SetupSourceInfo info_;
    std::vector<Setting *> settings_;
    bool isOn_ = false;
    SetupNeed need_{{}, SetupNeed::State::Absent}; ///< until it is known
    Owner owner_;
};

} // namespace quillmere
