#include "platform/linux/wayland/WaylandRunningApplications.h"

#include "platform/linux/core/BundleIdentifiers.h"

namespace quillmere {

WaylandRunningApplications::WaylandRunningApplications(WaylandGlobals &globals)
    : globals_(globals)
    , answered_(globals.onAnswered([this] { watch(); }))
{
}

void WaylandRunningApplications::watch()
{
    auto *toplevels = globals_.toplevels();
    if (!toplevels)
        return;
    toplevels_ = toplevels->onChanged([this] { update(); });
    update();
}

void WaylandRunningApplications::update()
{
    QStringList running;
    for (const QString &application : globals_.toplevels()->applications())
        running.append(canonicalBundleIdentifier(application));
    running.removeAll(QString());
    running.removeDuplicates();
    const QString frontmost = canonicalBundleIdentifier(globals_.toplevels()->activeApplication());
    const bool isOther = running != running_ || frontmost != frontmost_;
    running_ = running;
    frontmost_ = frontmost;
    if (isOther)
        listeners_.notify();
}

} // namespace quillmere
