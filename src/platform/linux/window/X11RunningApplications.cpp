#include "platform/linux/window/X11RunningApplications.h"

#include "platform/linux/core/BundleIdentifiers.h"

#include <QByteArray>

#include <memory>
#include <utility>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr std::uint32_t mostWindows = 1024;
constexpr std::uint32_t longestName = 64; // in units of 4 bytes

std::vector<xcb_window_t> windowsIn(const xcb_get_property_reply_t *reply)
{
    if (!reply || reply->format != 32)
        return {};
    const auto *values = static_cast<const xcb_window_t *>(xcb_get_property_value(reply));
    return {values, values + reply->value_len};
}

QByteArray bytesIn(const xcb_get_property_reply_t *reply)
{
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply)),
            static_cast<qsizetype>(reply->value_len)};
}

/// A window's own name for its desktop entry, perhaps as the path of the file.
QString desktopEntryIn(const QByteArray &property)
{
    QString name = QString::fromUtf8(property.left(property.indexOf('\0'))).section(u'/', -1);
    if (name.endsWith(".desktop"_L1))
        name.chop(8);
    return name;
}

/// The second of the two names in WM_CLASS. Desktop entries are called by it, in lower case.
QString classIn(const QByteArray &property)
{
    return QString::fromUtf8(property.split('\0').value(1)).toLower();
}

} // namespace

X11RunningApplications::X11RunningApplications(X11Observer &observer)
    : observer_(observer)
{
    if (!observer_.connection().isOpen())
        return;
    events_ = observer_.connection().onEvent([this](const auto &event) { handle(event); });
    activations_ = observer_.onActivated([this] { update(); });
    queryWindows();
}

void X11RunningApplications::handle(const xcb_generic_event_t &event)
{
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto &changed = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (changed.window == observer_.connection().root() &&
        changed.atom == observer_.atoms().clientList)
        queryWindows();
}

void X11RunningApplications::queryWindows()
{
    auto &connection = observer_.connection();
    const auto cookie =
        xcb_get_property(connection.raw(), false, connection.root(), observer_.atoms().clientList,
                         XCB_ATOM_WINDOW, 0, mostWindows);
    connection.await<xcb_get_property_reply_t>(
        owner_, cookie, [this](const auto *reply) { take(windowsIn(reply)); });
    connection.flush();
}

void X11RunningApplications::take(const std::vector<xcb_window_t> &windows)
{
    windows_ = windows;
    const auto known = std::exchange(applications_, {});
    for (const auto window : windows_) {
        const auto found = known.find(window);
        applications_[window] = found == known.end() ? QString() : found->second;
        if (found == known.end())
            queryApplication(window);
    }
    observer_.connection().flush();
    update();
}

void X11RunningApplications::queryApplication(xcb_window_t window)
{
    const auto name = std::make_shared<QString>(); // by the first property that has one
    const auto ask = [&](xcb_atom_t property, std::function<void(const QByteArray &)> done) {
        auto &connection = observer_.connection();
        const auto cookie = xcb_get_property(connection.raw(), false, window, property,
                                             XCB_GET_PROPERTY_TYPE_ANY, 0, longestName);
        connection.await<xcb_get_property_reply_t>(
            owner_, cookie, [done = std::move(done)](const auto *reply) { done(bytesIn(reply)); });
    };
    const auto takeEntry = [name](const QByteArray &bytes) {
        if (name->isEmpty())
            *name = desktopEntryIn(bytes);
    };
    ask(observer_.atoms().desktopFile, takeEntry);
    ask(observer_.atoms().gtkApplication, takeEntry);
    ask(XCB_ATOM_WM_CLASS, [this, name, window](const QByteArray &bytes) {
        const auto found = applications_.find(window);
        if (found == applications_.end())
            return; // closed already
        found->second = canonicalBundleIdentifier(name->isEmpty() ? classIn(bytes) : *name);
        update();
    });
}

void X11RunningApplications::update()
{
    QStringList running;
    for (const auto window : windows_)
        running.append(applications_[window]);
    running.removeAll(QString());
    running.removeDuplicates();
    const auto active = applications_.find(observer_.activeWindow());
    const QString frontmost = active == applications_.end() ? QString() : active->second;
    const bool isOther = running != running_ || frontmost != frontmost_;
    running_ = running;
    frontmost_ = frontmost;
    if (isOther)
        listeners_.notify();
}

} // namespace quillmere
