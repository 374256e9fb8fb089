#pragma once

#include "platform/RunLoop.h"
#include "views/AssistantModel.h"
#include "views/FaceModel.h"
#include "views/MediaModel.h"
#include "views/SystemModel.h"
#include "views/TimerModel.h"
#include "views/WeatherModel.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace quillmere {

class Appearance;
class AudioOutputPicker;
class ClaudeCodeMonitor;
class ContentView;
class FileTray;
class HUDManager;
class SettingsStore;
class SystemLoad;
class Timers;
class WeatherReports;

/// Where what the dashboard shows comes from.
struct DashboardSources {
    AudioOutputPicker &outputPicker;
    FileTray &fileTray;
    ClaudeCodeMonitor &claudeCode;
    WeatherReports &weather;
    SystemLoad &systemLoad;
    Timers &timers;
};

/// What the open dashboard shows, ready to be drawn: its pages, and what is live on them. It
/// follows the clock only while the dashboard is open.
class DashboardModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QStringList pages READ pages NOTIFY pagesChanged FINAL)
    Q_PROPERTY(int slideDirection READ slideDirection NOTIFY pageChanged FINAL)
    Q_PROPERTY(int pageIndex READ pageIndex NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString evenPage READ evenPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString oddPage READ oddPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(int slide READ slide NOTIFY pageChanged FINAL)

    Q_PROPERTY(QString time READ time NOTIFY clockChanged FINAL)
    Q_PROPERTY(QString date READ date NOTIFY clockChanged FINAL)

    Q_PROPERTY(bool showsLevel READ showsLevel NOTIFY levelChanged FINAL)
    Q_PROPERTY(quillmere::FaceModel *level READ level CONSTANT FINAL)
    Q_PROPERTY(bool overshoot READ overshoot NOTIFY overshootChanged FINAL)

    Q_PROPERTY(int activityCount READ activityCount NOTIFY activityChanged FINAL)
    Q_PROPERTY(int activityIndex READ activityIndex NOTIFY activityChanged FINAL)
    Q_PROPERTY(quillmere::FaceModel *activity READ activity CONSTANT FINAL)

    Q_PROPERTY(quillmere::MediaModel *media READ media CONSTANT FINAL)
    Q_PROPERTY(quillmere::AssistantModel *assistant READ assistant CONSTANT FINAL)

    Q_PROPERTY(quillmere::WeatherModel *weather READ weather CONSTANT FINAL)
    Q_PROPERTY(quillmere::SystemModel *system READ system CONSTANT FINAL)
    Q_PROPERTY(quillmere::TimerModel *timer READ timer CONSTANT FINAL)
    Q_PROPERTY(bool typing READ isTyping WRITE setTyping NOTIFY typingChanged FINAL)

    Q_PROPERTY(QString outputName READ outputName NOTIFY outputChanged FINAL)
    Q_PROPERTY(QString outputSymbol READ outputSymbol NOTIFY outputChanged FINAL)
    Q_PROPERTY(bool pickerOpen READ isPickerOpen NOTIFY pickerOpenChanged FINAL)
    Q_PROPERTY(QVariantList outputs READ outputs NOTIFY outputsChanged FINAL)

    Q_PROPERTY(bool dragging READ isDragging NOTIFY draggingChanged FINAL)
    Q_PROPERTY(bool trayEmpty READ isTrayEmpty NOTIFY trayFilesChanged FINAL)
    Q_PROPERTY(QVariantList trayFiles READ trayFiles NOTIFY trayFilesChanged FINAL)

public:
    DashboardModel(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
                   ContentView &contentView, const DashboardSources &sources,
                   Appearance &appearance, QObject *parent = nullptr);

    QStringList pages() const; ///< the titles of the pages offered
    int pageIndex() const;

    /// Two slots for the page shown and the one before it: page changes count up or down in
    /// `slide`, and the page of an even count is in the even slot.
    QString evenPage() const { return slots_[0]; }
    QString oddPage() const { return slots_[1]; }
    int slide() const { return slide_; }
    int slideDirection() const; ///< 1 or -1

    QString time() const;
    QString date() const;

    /// The volume or brightness just set, while the dashboard is open.
    bool showsLevel() const { return showsLevel_; }
    FaceModel *level() { return &level_; }
    bool overshoot() const;

    int activityCount() const;
    int activityIndex() const;
    FaceModel *activity() { return &activity_; } ///< while there is one

    MediaModel *media() { return &media_; }
    AssistantModel *assistant() { return &assistant_; }
    WeatherModel *weather() { return &weather_; }
    SystemModel *system() { return &system_; }
    TimerModel *timer() { return &timer_; }

    /// What is typed goes to the island.
    bool isTyping() const;
    void setTyping(bool typing);

    QString outputName() const;
    QString outputSymbol() const;
    bool isPickerOpen() const;
    /// Maps of id, name, symbol and isCurrent.
    QVariantList outputs() const;

    bool isDragging() const;
    bool isTrayEmpty() const;
    /// Maps of url, name and folder.
    QVariantList trayFiles() const;

    Q_INVOKABLE void close();

    /// The window has the keyboard no longer.
    Q_INVOKABLE void keyboardLeft();
    void keyPressed();

    Q_INVOKABLE void showPage(int index);
    Q_INVOKABLE void stepPage(int step);
    Q_INVOKABLE void stepActivity(int step);
    Q_INVOKABLE void dismissActivity();
    Q_INVOKABLE void openPicker();
    Q_INVOKABLE void closePicker();
    Q_INVOKABLE void chooseOutput(uint id);
    Q_INVOKABLE void openFile(const QUrl &file);
    Q_INVOKABLE void removeFile(const QUrl &file);

Q_SIGNALS:
    void pagesChanged();
    void pageChanged();
    void clockChanged();
    void levelChanged();
    void overshootChanged();
    void activityChanged();
    void outputChanged();
    void pickerOpenChanged();
    void outputsChanged();
    void draggingChanged();
    void typingChanged();
    void trayFilesChanged();
    void linkActivated(const QUrl &link);

private:
    bool isOpen() const;
    void presentationChanged();
    void pageTurned();
    void watchPages();
    void updateClock();
    void updateLevel();
    void updateActivity();

    RunLoop &runLoop_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    ContentView &contentView_;
    AudioOutputPicker &outputPicker_;
    FileTray &fileTray_;
    Appearance &appearance_;

    std::array<QString, 2> slots_;
    int slide_ = 0;
    bool showsLevel_ = false;
    FaceModel level_;
    FaceModel activity_;
    MediaModel media_;
    AssistantModel assistant_;
    WeatherModel weather_;
    SystemModel system_;
    TimerModel timer_;
    Task nextMinute_;
};

} // namespace quillmere
