#include "platform/linux/dbus/ShortcutInbox.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>

namespace quillmere {

namespace {

constexpr std::size_t maximumWaiting = 64;

QDBusMessage toMessage(const QDBusMessage &question, const ShortcutInbox::Answer &answer)
{
    if (!answer)
        return question.createErrorReply(answer.error().type, answer.error().text);
    return question.createReply(*answer);
}

} // namespace

ShortcutInbox::ShortcutInbox(RunLoop &runLoop)
    : runLoop_(runLoop)
{
}

void ShortcutInbox::publish(ShortcutRequests requests)
{
    requests_.reset();
    if (!requests.perform)
        return; // nothing is on offer any more
    requests_ = std::move(requests);
    runLoop_.post(owner_, [this] { handleWaiting(); });
}

bool ShortcutInbox::take(Action action)
{
    if (requests_ && waiting_.empty()) {
        const ShortcutRequests requests = *requests_; // the action may replace them
        action(requests);
        return true;
    }
    if (waiting_.size() >= maximumWaiting)
        return false;
    waiting_.push_back(std::move(action));
    return true;
}

void ShortcutInbox::answer(const QDBusContext &call,
                           std::function<Answer(const ShortcutRequests &requests)> work)
{
    call.setDelayedReply(true);
    const QDBusMessage &question = call.message();
    const QDBusConnection bus = call.connection();
    const bool isTaken = take([question, bus, work = std::move(work)](const auto &requests) {
        bus.send(toMessage(question, work(requests)));
    });
    if (!isTaken)
        bus.send(question.createErrorReply(
            QDBusError::LimitsExceeded,
            QStringLiteral("too many requests wait for the start to finish")));
}

void ShortcutInbox::handleWaiting()
{
    while (requests_ && !waiting_.empty()) {
        const ShortcutRequests requests = *requests_;
        const Action action = std::move(waiting_.front());
        waiting_.pop_front();
        action(requests);
    }
}

} // namespace quillmere
