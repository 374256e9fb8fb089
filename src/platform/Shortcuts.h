#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

#include <tl/expected.hpp>

#include <functional>

namespace quillmere {

/// Something that other programs, key bindings and the desktop's search can have the program do.
struct Shortcut {
    QString name;   ///< "StartPomodoroIntent"
    QString action; ///< "start-pomodoro", also its id in a search and as a key binding
    QString title;
    QString symbol; ///< a name of platform/Symbols.h
};

/// What a search found: a shortcut, with its parameter where the query had one.
struct ShortcutMatch {
    QString id; ///< for perform by match
    QString title;
    QString subtitle;
    QString symbol;
    double relevance = 0; ///< 0..1; 1: exactly what was typed
};

/// What the shortcuts are and do.
struct ShortcutRequests {
    std::function<QList<Shortcut>()> list;

    /// The dialog, or why it cannot be done. The caller shows either.
    std::function<tl::expected<QString, QString>(const QString &intent,
                                                 const QVariantMap &parameters)>
        perform;

    /// What fits a query, the best first. Changes nothing.
    std::function<QList<ShortcutMatch>(const QString &query)> search;

    /// Of those among `ids` that a search can have found, in their order.
    std::function<QList<ShortcutMatch>(const QStringList &ids)> describe;

    /// Performs what a search found, or a shortcut by its action. The outcome is shown here, for
    /// the caller has no place for it.
    std::function<void(const QString &id)> run;

    /// Shows the program itself.
    std::function<void()> show;
};

/// Makes the shortcuts known to the desktop. Main thread only.
class ShortcutPublisher
{
public:
    virtual ~ShortcutPublisher() = default;

    /// Replaces what was published before. Requests that come before wait for this.
    virtual void publish(ShortcutRequests requests) = 0;
};

} // namespace quillmere
