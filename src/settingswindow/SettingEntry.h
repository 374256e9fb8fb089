#pragma once

#include "settings/Choices.h"

#include <array>
#include <span>

namespace quillmere {

/// How a setting is changed.
enum class SettingControl { Switch, Slider, Segments, Text, Number };

/// What the desktop has to be able to do for a setting to have an effect.
enum class SettingNeed { Nothing, CaptureHiding, OverviewHiding, FullscreenDetection, FileDrags };

/// Of a slider or a number field.
struct SettingRange {
    double from = 0;
    double to = 1;
    double step = 1;
    const char *unit = "%1"; ///< the text around the figure, to be translated
    int decimals = 0;
    double factor = 1;          ///< what is shown is the value times this
    const char *zero = nullptr; ///< what stands for 0, to be translated
};

/// One setting as the window offers it. Texts are in English, marked for translation in the
/// context "Settings".
struct SettingEntry {
    const char *key = "";
    SettingControl control = SettingControl::Switch;
    const char *title = "";
    const char *explanation = "";
    SettingRange range{};
    std::array<const char *, 4> choices{}; ///< titles, in the order of the setting's choices
    SettingNeed need = SettingNeed::Nothing;
    bool isLocal = false; ///< concerns this machine only and is kept apart
    bool isInBox = false; ///< its control is in the account box of its page
};

/// Settings that stand together on a page, below a heading.
struct SettingGroup {
    SettingsPage page = SettingsPage::General;
    const char *heading = "";
    std::span<const SettingEntry> entries;
};

constexpr SettingEntry toggle(const char *key, const char *title, const char *explanation,
                              SettingNeed need = SettingNeed::Nothing)
{
    return {.key = key,
            .control = SettingControl::Switch,
            .title = title,
            .explanation = explanation,
            .need = need};
}

constexpr SettingEntry slider(const char *key, const char *title, const char *explanation,
                              const SettingRange &range)
{
    return {.key = key,
            .control = SettingControl::Slider,
            .title = title,
            .explanation = explanation,
            .range = range};
}

constexpr SettingEntry number(const char *key, const char *title, const char *explanation,
                              const SettingRange &range)
{
    return {.key = key,
            .control = SettingControl::Number,
            .title = title,
            .explanation = explanation,
            .range = range};
}

constexpr SettingEntry picker(const char *key, const char *title, const char *explanation,
                              std::array<const char *, 4> choices)
{
    return {.key = key,
            .control = SettingControl::Segments,
            .title = title,
            .explanation = explanation,
            .choices = choices};
}

constexpr SettingEntry text(const char *key, const char *title, const char *explanation)
{
    return {
        .key = key, .control = SettingControl::Text, .title = title, .explanation = explanation};
}

constexpr SettingEntry local(SettingEntry entry)
{
    entry.isLocal = true;
    return entry;
}

constexpr SettingEntry inBox(SettingEntry entry)
{
    entry.isInBox = true;
    return entry;
}

} // namespace quillmere
