#include "platform/linux/dbus/RequestInbox.h"

#include <QDebug>

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::size_t maximumWaiting = 64;
constexpr qsizetype maximumUris = 64;
constexpr qsizetype maximumTextBytes = 8192; // of a URI or a parameter
constexpr qsizetype maximumActionLength = 128;

Refusal invalid(const QString &text)
{
    return {QDBusError::InvalidArgs, text};
}

bool isTooLong(const QString &text)
{
    return text.size() > maximumTextBytes || text.toUtf8().size() > maximumTextBytes;
}

/// Actions take plain values: whatever else a caller sends is no parameter of any of them.
bool isPlain(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    case QMetaType::QString:
        return !isTooLong(value.toString());
    default:
        return false;
    }
}

} // namespace

RequestInbox::RequestInbox(RunLoop &runLoop)
    : runLoop_(runLoop)
{
}

void RequestInbox::setHandlers(RemoteRequests handlers)
{
    handlers_ = std::move(handlers);
    runLoop_.post(owner_, [this] { handleWaiting(); });
}

RequestInbox::Outcome RequestInbox::activate()
{
    return take([](const RemoteRequests &handlers) -> Outcome {
        if (handlers.activate)
            handlers.activate();
        return {};
    });
}

RequestInbox::Outcome RequestInbox::open(const QStringList &uris)
{
    if (uris.size() > maximumUris)
        return invalid(QStringLiteral("more than %1 URIs").arg(maximumUris));
    if (std::ranges::any_of(uris, isTooLong))
        return invalid(QStringLiteral("a URI is longer than %1 bytes").arg(maximumTextBytes));
    return take([uris](const RemoteRequests &handlers) -> Outcome {
        if (handlers.open)
            handlers.open(uris);
        return {};
    });
}

RequestInbox::Outcome RequestInbox::activateAction(const QString &action,
                                                   const QVariantList &parameter)
{
    if (action.size() > maximumActionLength)
        return invalid(QStringLiteral("no action has so long a name"));
    if (parameter.size() > 1)
        return invalid(QStringLiteral("an action takes one parameter at most"));
    if (!std::ranges::all_of(parameter, isPlain))
        return invalid(QStringLiteral("the parameter is no plain value of a reasonable size"));
    return take([action, parameter](const RemoteRequests &handlers) -> Outcome {
        ActionOutcome outcome = false;
        if (handlers.activateAction)
            outcome = handlers.activateAction(action, parameter);
        if (outcome)
            return {};
        if (!outcome.reason.isEmpty())
            return invalid(outcome.reason);
        return invalid(
            QStringLiteral("there is no action \"%1\" with %2 parameter")
                .arg(action, parameter.isEmpty() ? QStringLiteral("no") : QStringLiteral("this")));
    });
}

RequestInbox::Outcome RequestInbox::take(Request request)
{
    if (handlers_ && waiting_.empty())
        return request(*handlers_);
    if (waiting_.size() >= maximumWaiting)
        return Refusal{QDBusError::LimitsExceeded,
                       QStringLiteral("too many requests wait for the start to finish")};
    waiting_.push_back(std::move(request));
    return {};
}

void RequestInbox::handleWaiting()
{
    while (handlers_ && !waiting_.empty()) {
        const Request request = std::move(waiting_.front());
        waiting_.pop_front();
        if (const Outcome outcome = request(*handlers_))
            qWarning("[Quillmere] An early request was no good: %s", qUtf8Printable(outcome->text));
    }
}

} // namespace quillmere
