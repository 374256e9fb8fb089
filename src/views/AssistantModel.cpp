#include "views/AssistantModel.h"

#include "claude/ClaudeCodeMonitor.h"
#include "platform/RunLoop.h"
#include "views/PlainText.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

constexpr qsizetype longestName = 80;
constexpr qsizetype longestPrompt = 200;

constexpr qint64 minute = 60; // seconds
constexpr qint64 staleAfter = 60 * minute;

struct StatusLook {
    const char *label;
    QColor color;
};

const StatusLook &look(ClaudeCodeStatus status)
{
    static const std::array<StatusLook, 4> looks{{
        {QT_TRANSLATE_NOOP("quillmere::AssistantModel", "Idle"), QColor::fromRgbF(1, 1, 1, 0.4F)},
        {QT_TRANSLATE_NOOP("quillmere::AssistantModel", "Working..."),
         QColor::fromRgbF(0.851F, 0.471F, 0.337F)},
        {QT_TRANSLATE_NOOP("quillmere::AssistantModel", "Waiting"), QColor(0x64, 0xb5, 0xff)},
        {QT_TRANSLATE_NOOP("quillmere::AssistantModel", "Compacting"), QColor(0xff, 0xd5, 0x4a)},
    }};
    return looks.at(static_cast<std::size_t>(status));
}

QString labelOf(ClaudeCodeStatus status)
{
    return AssistantModel::tr(look(status).label);
}

QString sinceText(qint64 seconds)
{
    if (seconds < minute)
        return AssistantModel::tr("now");
    return AssistantModel::tr("%1 min ago").arg(seconds / minute);
}

// For the translators: what the tools are called for people.
[[maybe_unused]] constexpr const char *toolTexts[] = {
    QT_TRANSLATE_NOOP("AssistantTool", "Editing file"),
    QT_TRANSLATE_NOOP("AssistantTool", "Writing file"),
    QT_TRANSLATE_NOOP("AssistantTool", "Reading file"),
    QT_TRANSLATE_NOOP("AssistantTool", "Running command"),
    QT_TRANSLATE_NOOP("AssistantTool", "Searching files"),
    QT_TRANSLATE_NOOP("AssistantTool", "Searching code"),
    QT_TRANSLATE_NOOP("AssistantTool", "Running sub-agent"),
    QT_TRANSLATE_NOOP("AssistantTool", "Fetching web page"),
    QT_TRANSLATE_NOOP("AssistantTool", "Searching web"),
    QT_TRANSLATE_NOOP("AssistantTool", "Updating tasks"),
};

/// In the user's language; a tool that is not known keeps its name.
QString toolText(const QString &label)
{
    return QCoreApplication::translate("AssistantTool", label.toUtf8().constData());
}

} // namespace

AssistantModel::AssistantModel(RunLoop &runLoop, ClaudeCodeMonitor &monitor, QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , monitor_(monitor)
{
    connect(&monitor_, &ClaudeCodeMonitor::currentSessionChanged, this, &AssistantModel::update);
    connect(&monitor_, &ClaudeCodeMonitor::statusChanged, this, &AssistantModel::update);
    update();
}

void AssistantModel::setWatched(bool watched)
{
    if (std::exchange(watched_, watched) != watched)
        followClock();
}

void AssistantModel::update()
{
    const auto &session = monitor_.currentSession();
    Face face = face_;
    face.status = monitor_.status();
    if (face.status != ClaudeCodeStatus::Idle)
        face.badge = face.status;
    if (session) {
        face.project = plainText(session->projectName, longestName);
        if (face.project.isEmpty())
            face.project = tr("Claude Code");
        face.tool =
            face.status == ClaudeCodeStatus::Idle
                ? QString()
                : plainText(toolText(session->currentTool.value_or(QString())), longestName);
        face.prompt = plainText(session->lastPrompt.value_or(QString()), longestPrompt);
    }
    const bool wasActive = isActive();
    if (std::exchange(face_, face) != face)
        Q_EMIT faceChanged();
    if (isActive() != wasActive)
        Q_EMIT activeChanged();
    followClock();
}

void AssistantModel::followClock()
{
    nextMinute_.cancel();
    const auto &session = monitor_.currentSession();
    if (!session)
        return setHasSession(false);
    const qint64 seconds = std::max<qint64>(0, session->lastUpdate.secsTo(runLoop_.date()));
    const QString since = sinceText(seconds);
    if (std::exchange(since_, since) != since)
        Q_EMIT sinceChanged();
    updateAccessibleText();
    const bool stale = seconds >= staleAfter;
    setHasSession(!stale);
    if (watched_ && !stale)
        nextMinute_ = runLoop_.after(std::chrono::seconds(minute - seconds % minute),
                                     [this] { followClock(); });
}

void AssistantModel::setHasSession(bool hasSession)
{
    if (std::exchange(hasSession_, hasSession) != hasSession)
        Q_EMIT hasSessionChanged();
}

QString AssistantModel::label() const
{
    return labelOf(face_.status);
}

QColor AssistantModel::color() const
{
    return look(face_.status).color;
}

QString AssistantModel::badgeLabel() const
{
    return labelOf(face_.badge);
}

QColor AssistantModel::badgeColor() const
{
    return look(face_.badge).color;
}

QString AssistantModel::summary() const
{
    return tr("Claude Code: %1, %2").arg(label(), project());
}

void AssistantModel::updateAccessibleText()
{
    QStringList parts{summary(), tool(), prompt(), since()};
    parts.removeAll(QString());
    const QString text = parts.join(tr(", "));
    if (std::exchange(accessibleText_, text) != text)
        Q_EMIT accessibleTextChanged();
}

} // namespace quillmere
