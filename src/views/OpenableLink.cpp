#include "views/OpenableLink.h"

#include <algorithm>

namespace quillmere {

QUrl openableLink(const std::optional<QString> &text)
{
    const QUrl link(text.value_or(QString()), QUrl::StrictMode);
    const auto schemes = {QLatin1StringView("https"), QLatin1StringView("http"),
                          QLatin1StringView("mailto")};
    const bool allowed = std::ranges::find(schemes, link.scheme()) != schemes.end();
    return link.isValid() && allowed ? link : QUrl();
}

} // namespace quillmere
