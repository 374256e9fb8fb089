#pragma once

#include "platform/Owner.h"
#include "platform/Task.h"
#include "settingswindow/SettingEntry.h"

#include <QObject>
#include <QVariantList>

#include <vector>

namespace quillmere {

class SettingRow;
enum class WatchedNotificationApp;
struct Platform;
struct SettingsServices;

/// Why a setting that needs this has no effect here; empty if it has.
QString missing(SettingNeed need, const Platform &platform);

/// What a page tells and does beside its settings: what was found on this machine, what is missing
/// and how to mend it, and tests. Owns its rows. Main thread only.
class PageNotes : public QObject
{
    Q_OBJECT

public:
    PageNotes(SettingsServices &services, SettingsPage page);

    /// In the form of SettingsModel's groups.
    const QVariantList &groups() const { return groups_; }

private:
    void general();
    void battery();
    void focus();
    void display();
    void sound();
    void connectivity();
    void email();
    void google();
    void messages(WatchedNotificationApp app);
    void nowPlaying();
    void weather();
    void assistant();
    void about();

    void showPlace(SettingRow &row);
    void showWeather(SettingRow &row) const;
    void showPlayers(SettingRow &row) const;
    void showPlayer(SettingRow &row) const;

    SettingRow *row(const char *id, const char *title, const char *explanation = "");
    SettingRow *button(const char *id, const char *title, const char *explanation,
                       const char *buttonTitle, std::function<void()> action);
    void group(const char *heading, const QList<SettingRow *> &rows);

    SettingsServices &services_;
    QVariantList groups_;
    std::vector<Task> tasks_;
    Owner owner_;
};

} // namespace quillmere
