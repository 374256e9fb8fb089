#pragma once

#include "claude/ClaudeCodeStatus.h"
#include "platform/Task.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class ClaudeCodeMonitor;
class RunLoop;

/// What the coding assistant does as the island's scene reads it, in texts that are fit to be shown
/// whoever sent them.
///
/// When the session goes, only `hasSession` changes, and the badge stays what it last was: the
/// scene fades out what it last showed.
class AssistantModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool hasSession READ hasSession NOTIFY hasSessionChanged FINAL)
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged FINAL)
    Q_PROPERTY(QString label READ label NOTIFY faceChanged FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString badgeLabel READ badgeLabel NOTIFY faceChanged FINAL)
    Q_PROPERTY(QColor badgeColor READ badgeColor NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString project READ project NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString tool READ tool NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString prompt READ prompt NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString since READ since NOTIFY sinceChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)

public:
    AssistantModel(RunLoop &runLoop, ClaudeCodeMonitor &monitor, QObject *parent = nullptr);

    /// Whether the session is on show: only then it follows the clock.
    void setWatched(bool watched);

    bool hasSession() const { return hasSession_; }
    bool isActive() const { return face_.status != ClaudeCodeStatus::Idle; }
    QString label() const;
    QColor color() const;
    QString badgeLabel() const; ///< of the last activity
    QColor badgeColor() const;
    QString project() const { return face_.project; } ///< never empty
    QString tool() const { return face_.tool; }       ///< in use now; empty: none
    QString prompt() const { return face_.prompt; }   ///< empty: none known
    QString summary() const;                 ///< what the pill shows, for who cannot see it
    QString since() const { return since_; } ///< the last event: "now", "2 min ago"
    QString accessibleText() const { return accessibleText_; } ///< what the card shows, whole

Q_SIGNALS:
    void hasSessionChanged();
    void activeChanged();
    void faceChanged();
    void sinceChanged();
    void accessibleTextChanged();

private:
    struct Face {
        ClaudeCodeStatus status = ClaudeCodeStatus::Idle;
        ClaudeCodeStatus badge = ClaudeCodeStatus::Working;
        QString project{};
        QString tool{};
        QString prompt{};

        bool operator==(const Face &) const = default;
    };

    void update();
    void followClock();
    void setHasSession(bool hasSession);
    void updateAccessibleText();

    RunLoop &runLoop_;
    ClaudeCodeMonitor &monitor_;

    bool hasSession_ = false;
    Face face_;
    QString since_;
    QString accessibleText_;
    bool watched_ = false;
    Task nextMinute_;
};

} // namespace quillmere
