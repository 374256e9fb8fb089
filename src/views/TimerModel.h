#pragma once

#include "tools/PomodoroState.h"
#include "tools/TimerMode.h"

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class SettingsStore;
class Timers;

/// The timers as the island's scene reads them: one of three tools is on the page, and one is in
/// the wings.
class TimerModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QStringList tools READ tools NOTIFY toolsChanged FINAL)
    Q_PROPERTY(int tool READ tool NOTIFY toolsChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString time READ time NOTIFY changed FINAL)
    Q_PROPERTY(bool hasHours READ hasHours NOTIFY changed FINAL)
    Q_PROPERTY(double fraction READ fraction NOTIFY changed FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList dots READ dots NOTIFY changed FINAL)
    Q_PROPERTY(QString mainAction READ mainAction NOTIFY changed FINAL)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed FINAL)
    Q_PROPERTY(bool canSkip READ canSkip NOTIFY changed FINAL)
    Q_PROPERTY(bool canReset READ canReset NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList presets READ presets NOTIFY toolsChanged FINAL)
    Q_PROPERTY(int preset READ preset NOTIFY changed FINAL)
    Q_PROPERTY(bool entering READ isEntering NOTIFY enteringChanged FINAL)

    Q_PROPERTY(QString wingSymbol READ wingSymbol NOTIFY wingChanged FINAL)
    Q_PROPERTY(QString wingText READ wingText NOTIFY wingChanged FINAL)

public:
    TimerModel(SettingsStore &settings, Timers &timers, QObject *parent = nullptr);

    /// Whether the page is on show: only then it follows the time.
    void setWatched(bool watched);

    QStringList tools() const; ///< titles
    int tool() const { return static_cast<int>(tool_); }
    QString title() const; ///< of what runs: "Focus", "Short Break", ...
    QString time() const;
    bool hasHours() const { return time().count(u':') > 1; }
    double fraction() const; ///< of the time that is left, 0..1
    QColor color() const;
    QVariantList dots() const;  ///< 0, 1, 2: a session open, under way, done; empty for other tools
    QString mainAction() const; ///< "Start", "Pause", "Resume" or "Stop"
    bool isRunning() const;
    bool canSkip() const;
    bool canReset() const;
    QVariantList presets() const; ///< minutes; empty for other tools
    int preset() const;           ///< the minutes in use; -1: none of the presets
    bool isEntering() const { return isEntering_; }

    QString wingSymbol() const { return wingSymbol_; }
    QString wingText() const { return wingText_; } ///< what fades out stays as it was

    Q_INVOKABLE void choose(int tool);
    Q_INVOKABLE void doMain();
    Q_INVOKABLE void skip();
    Q_INVOKABLE void reset();
    Q_INVOKABLE void startPreset(int minutes);

    /// A length of the user's own is typed.
    Q_INVOKABLE void openEntry();
    Q_INVOKABLE void closeEntry();
    /// False, and nothing happens, unless the text is a length.
    Q_INVOKABLE bool enter(const QString &text);

Q_SIGNALS:
    void toolsChanged();
    void changed();
    void enteringChanged();
    void wingChanged();

private:
    enum class Tool { Focus, Countdown, Stopwatch };

    void timeChanged();
    void updateWing();
    void turnToWhatRuns();
    bool counts(TimerMode mode) const;
    void useMode(TimerMode mode);

    SettingsStore &settings_;
    Timers &timers_;
    Tool tool_ = Tool::Focus;
    QString shownTime_;
    QString wingSymbol_;
    QString wingText_;
    bool isEntering_ = false;
    bool watched_ = false;
};

} // namespace quillmere
