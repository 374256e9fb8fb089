#include "messages/NotificationPayload.h"

#include "messages/BinaryPropertyList.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

using Object = BinaryPropertyList::Object;

std::optional<QString> textUnder(const BinaryPropertyList &list, Object dictionary,
                                 QLatin1StringView key)
{
    const auto value = list.value(dictionary, key);
    return value ? list.text(*value) : std::nullopt;
}

void readRequest(const BinaryPropertyList &list, ParsedNotification &notification)
{
    const auto request = list.value(list.top(), QLatin1StringView("req"));
    if (!request || !list.isDictionary(*request))
        return;
    notification.title = textUnder(list, *request, QLatin1StringView("titl")).value_or(QString());
    notification.subtitle = textUnder(list, *request, QLatin1StringView("subt"));
    notification.body = textUnder(list, *request, QLatin1StringView("body"));
}

/// An archive keeps all objects in one array and tells of each text where in there it is.
void readArchive(const BinaryPropertyList &list, ParsedNotification &notification)
{
    const auto objects = list.value(list.top(), QLatin1StringView("$objects"));
    const auto first = objects ? list.element(*objects, 1) : std::nullopt;
    if (!first || !list.isDictionary(*first))
        return;
    const auto indexUnder = [&](const char *key) {
        const auto value = list.value(*first, QLatin1StringView(key));
        return value ? list.integer(*value) : std::nullopt;
    };
    const auto textAt = [&](std::optional<std::int64_t> index) -> std::optional<QString> {
        const auto element = index ? list.element(*objects, *index) : std::nullopt;
        return element ? list.text(*element) : std::nullopt;
    };
    constexpr int usualTitle = 2;
    constexpr int usualBody = 3;
    if (auto title = textAt(indexUnder("NSTitle").value_or(usualTitle)))
        notification.title = *std::move(title);
    if (auto subtitle = textAt(indexUnder("NSSubtitle")))
        notification.subtitle = std::move(subtitle);
    if (auto body = textAt(indexUnder("NSInformativetext").value_or(usualBody)))
        notification.body = std::move(body);
}

} // namespace

std::optional<ParsedNotification> parsedNotification(const NotificationRow &row)
{
    if (row.data.size() > largestPayload)
        return std::nullopt;
    const auto list = BinaryPropertyList::parse(row.data);
    if (!list || !list->isDictionary(list->top()))
        return std::nullopt;
    ParsedNotification notification{
        .appID = row.appID, .uuid = row.uuid, .deliveredDate = row.deliveredDate};
    readRequest(*list, notification);
    if (notification.title.isEmpty())
        readArchive(*list, notification);
    if (notification.title.isEmpty())
        notification.title = QCoreApplication::translate("Notification", "New message");
    return notification;
}

} // namespace quillmere
