#pragma once

#include "platform/linux/dbus/BusCalls.h"

#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

namespace quillmere {

/// The messages to a running Quillmere. None of them starts one.
QDBusMessage actionMessage(const QString &action, const QVariantList &parameter);
QDBusMessage performMessage(const QString &intent, const QVariantMap &parameters);
QDBusMessage getMessage(const QString &property);
QDBusMessage getAllMessage();

/// A parameter from the command line: an integer if it reads as one, else a text.
QVariant toParameter(const QString &text);

/// Sends `message` and waits for the answer, 5 s at most.
BusReply ask(const QDBusConnection &bus, const QDBusMessage &message);

/// The dictionary that is the first value of the answer to getAllMessage().
QVariantMap toProperties(const QVariantList &answer);

/// The error as a sentence for people.
QString describe(const QDBusError &error);

bool isNotRunning(const QDBusError &error);

} // namespace quillmere
