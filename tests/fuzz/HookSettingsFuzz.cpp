#include "claude/HookSettings.h"

#include <nlohmann/json.hpp>

#include <cstdlib>

using namespace quillmere;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

/// Registering twice is registering once, and taking it back leaves what taking out leaves anyway.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray settings(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto with = withHooks(settings, QStringLiteral("/h/.claude/hooks/quillmere-hook.sh"));
    const auto without = withoutHooks(settings);
    refersToHook(settings);
    if (!with) {
        require(!without);
        return 0;
    }
    require(nlohmann::json::accept(with->text.begin(), with->text.end()) &&
            refersToHook(with->text));
    const auto again = withHooks(with->text, QStringLiteral("/h/.claude/hooks/quillmere-hook.sh"));
    require(again && again->text == with->text && !again->losesForeign);
    const auto back = withoutHooks(with->text);
    require(back.has_value());
    if (without)
        require(back->text == without->text && with->losesForeign == without->losesForeign);
    else
        require(back->text == "{}\n");
    return 0;
}
