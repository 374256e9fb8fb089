#pragma once

#include "settings/Choices.h"

#include <QColor>
#include <QLatin1StringView>

#include <span>

namespace quillmere {

/// A page of the window as the sidebar shows it.
struct SettingsPageInfo {
    SettingsPage page = SettingsPage::General;
    const char *title = ""; ///< to be translated
    QLatin1StringView symbol;
    QRgb color = 0;
    const char *absence = nullptr; ///< why there is nothing to set, to be translated
};

/// In the order of the sidebar.
std::span<const SettingsPageInfo> settingsPages();

const SettingsPageInfo &info(SettingsPage page);

} // namespace quillmere
