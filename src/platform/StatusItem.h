#pragma once

#include <QChar>
#include <QString>

#include <functional>
#include <vector>

namespace quillmere {

/// A line of the status item's menu.
struct StatusMenuEntry {
    QString title;
    QChar keyEquivalent; ///< pressed together with Control; null: none
    std::function<void()> action;
    bool isSeparator = false; ///< then nothing else counts
};

struct StatusItemContent {
    QString
        symbol; ///< system-symbol name; one that can't be drawn leaves the item without an image
    QString accessibilityDescription;
    std::vector<StatusMenuEntry> menu;
    std::function<void()> onActivate; ///< a click on the item itself
};

/// The icon in the desktop's status bar. The desktop may have no place for one, or get or lose it
/// at any time; the item is there whenever there is. Main thread only.
class StatusItem
{
public:
    virtual ~StatusItem() = default;

    /// Shows the item, or changes the one that is shown. Its callbacks never run from within.
    virtual void show(const StatusItemContent &content) = 0;

    /// Whether a status bar has taken the item.
    virtual bool isOnBar() const { return true; }

    /// Takes the item away; its callbacks run no more.
    virtual void remove() = 0;
};

} // namespace quillmere
