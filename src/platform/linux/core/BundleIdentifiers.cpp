#include "platform/linux/core/BundleIdentifiers.h"

#include <QLatin1StringView>

#include <array>

namespace quillmere {

namespace {

struct KnownName {
    QLatin1StringView beginning; ///< in lower case, with hyphens for spaces; a whole word
    QLatin1StringView identifier;
};

constexpr QLatin1StringView chrome("com.google.Chrome");
constexpr QLatin1StringView brave("com.brave.Browser");
constexpr QLatin1StringView edge("com.microsoft.edgemac");
constexpr QLatin1StringView vivaldi("com.vivaldi.Vivaldi");
constexpr QLatin1StringView opera("com.operasoftware.Opera");
constexpr QLatin1StringView firefox("org.mozilla.firefox");
constexpr QLatin1StringView spotify("com.spotify.client");

constexpr std::array<KnownName, 23> knownNames{{
    {QLatin1StringView("chrome"), chrome},
    {QLatin1StringView("google-chrome"), chrome},
    {QLatin1StringView("com.google.chrome"), chrome},
    {QLatin1StringView("chromium"), chrome},
    {QLatin1StringView("org.chromium.chromium"), chrome},
    {QLatin1StringView("brave"), brave},
    {QLatin1StringView("com.brave.browser"), brave},
    {QLatin1StringView("edge"), edge},
    {QLatin1StringView("msedge"), edge},
    {QLatin1StringView("microsoft-edge"), edge},
    {QLatin1StringView("com.microsoft.edge"), edge},
    {QLatin1StringView("com.microsoft.edgemac"), edge},
    {QLatin1StringView("vivaldi"), vivaldi},
    {QLatin1StringView("com.vivaldi.vivaldi"), vivaldi},
    {QLatin1StringView("opera"), opera},
    {QLatin1StringView("com.opera.opera"), opera},
    {QLatin1StringView("com.operasoftware.opera"), opera},
    {QLatin1StringView("firefox"), firefox},
    {QLatin1StringView("mozilla-firefox"), firefox},
    {QLatin1StringView("org.mozilla.firefox"), firefox},
    {QLatin1StringView("spotify"), spotify},
    {QLatin1StringView("com.spotify.client"), spotify},
    {QLatin1StringView("com.spotify.spotify"), spotify},
}};

bool beginsWithWord(const QString &name, QLatin1StringView word)
{
    return name.startsWith(word) && (name.size() == word.size() || !name[word.size()].isLetter());
}

} // namespace

QString canonicalBundleIdentifier(const QString &name)
{
    const QString plain = name.toLower().replace(u' ', u'-');
    for (const auto &[beginning, identifier] : knownNames) {
        if (beginsWithWord(plain, beginning))
            return identifier;
    }
    return name;
}

} // namespace quillmere
