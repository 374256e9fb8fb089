#include "messages/BinaryPropertyList.h"
#include "messages/NotificationPayload.h"

#include <cstdlib>

using namespace quillmere;

/// Whatever is accepted has a title, and no more text than its payload has bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto notification = parsedNotification({.data = bytes});
    const auto list = BinaryPropertyList::parse(bytes);
    if (!notification)
        return list && list->isDictionary(list->top()) ? std::abort(), 1 : 0;
    if (notification->title.isEmpty() ||
        notification->body.value_or(QString()).size() > bytes.size())
        std::abort();
    for (BinaryPropertyList::Object object = 0; object < size; ++object) {
        const auto text = list->text(object);
        if (text && text->size() > bytes.size())
            std::abort();
        if (list->integer(object) && (text || list->isDictionary(object)))
            std::abort();
        const auto element = list->element(object, static_cast<std::int64_t>(object));
        if (element && list->isDictionary(object))
            std::abort();
    }
    return 0;
}
