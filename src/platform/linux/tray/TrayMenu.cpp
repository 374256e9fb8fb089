#include "platform/linux/tray/TrayMenu.h"

#include "dbusmenuadaptor.h"

#include <QGuiApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillmere {

namespace {

constexpr int rootId = 0;
constexpr qsizetype mostEvents = 64; // in one call
constexpr uint interfaceVersion = 3;

/// An underscore would mark the next letter as the one to press.
QString toLabel(QString title)
{
    return title.replace(u'_', QLatin1StringView("__"));
}

/// Properties that have their default value are left out.
QVariantMap describe(const StatusMenuEntry &entry)
{
    if (entry.isSeparator)
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    QVariantMap properties{{QStringLiteral("label"), toLabel(entry.title)}};
    if (!entry.keyEquivalent.isNull()) {
        const TrayShortcuts shortcuts{{QStringLiteral("Control"), QString(entry.keyEquivalent)}};
        properties.insert(QStringLiteral("shortcut"), QVariant::fromValue(shortcuts));
    }
    return properties;
}

} // namespace

TrayMenu::TrayMenu(RunLoop &runLoop)
    : runLoop_(runLoop)
{
    registerTrayTypes();
    setProperty("Version", interfaceVersion);
    setProperty("Status", QStringLiteral("normal"));
    setProperty("TextDirection",
                QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr"));
    setProperty("IconThemePath", QStringList());
    new DBusMenuAdaptor(this);
}

void TrayMenu::setEntries(std::vector<StatusMenuEntry> entries)
{
    entries_ = std::move(entries);
    ++revision_;
    Q_EMIT LayoutUpdated(revision_, rootId);
}

uint TrayMenu::GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                         TrayMenuLayout &layout)
{
    if (!mayUse(parentId))
        return 0;
    layout = {parentId, properties(parentId, propertyNames), {}};
    if (parentId == rootId && recursionDepth != 0) {
        for (int id = 1; contains(id); ++id)
            layout.children.append(
                QVariant::fromValue(TrayMenuLayout{id, properties(id, propertyNames), {}}));
    }
    return revision_;
}

TrayMenuProperties TrayMenu::GetGroupProperties(const QList<int> &ids,
                                                const QStringList &propertyNames)
{
    TrayMenuProperties found;
    // The order is ours, so a caller that repeats an id a million times gets it once.
    for (int id = rootId; contains(id); ++id) {
        if (ids.isEmpty() || ids.contains(id))
            found.append({id, properties(id, propertyNames)});
    }
    return found;
}

QDBusVariant TrayMenu::GetProperty(int id, const QString &name)
{
    if (!mayUse(id))
        return QDBusVariant(QString());
    const QVariant value = properties(id, {}).value(name);
    if (value.isValid())
        return QDBusVariant(value);
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("The item has no such property"));
    return QDBusVariant(QString());
}

void TrayMenu::Event(int id, const QString &eventId, const QDBusVariant & /*data*/,
                     uint /*timestamp*/)
{
    if (mayUse(id))
        handle(id, eventId);
}

QList<int> TrayMenu::EventGroup(const TrayMenuEvents &events)
{
    QList<int> unknown;
    if (events.size() > mostEvents) {
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("Too many events at once"));
        return unknown;
    }
    for (const TrayMenuEvent &event : events) {
        if (contains(event.id))
            handle(event.id, event.type);
        else
            unknown.append(event.id);
    }
    if (!events.isEmpty() && unknown.size() == events.size())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("The menu has none of these items"));
    return unknown;
}

bool TrayMenu::AboutToShow(int id)
{
    mayUse(id);
    return false;
}

QList<int> TrayMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    std::ranges::copy_if(ids, std::back_inserter(idErrors),
                         [this](int id) { return !contains(id); });
    return {};
}

bool TrayMenu::contains(int id) const
{
    return id >= rootId && static_cast<std::size_t>(id) <= entries_.size();
}

bool TrayMenu::mayUse(int id)
{
    if (contains(id))
        return true;
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("The menu has no such item"));
    return false;
}

QVariantMap TrayMenu::properties(int id, const QStringList &names) const
{
    QVariantMap all{{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    if (id != rootId)
        all = describe(entries_[static_cast<std::size_t>(id) - 1]);
    if (!names.isEmpty())
        all.removeIf([&names](const std::pair<const QString &, QVariant &> &property) {
            return !names.contains(property.first);
        });
    return all;
}

void TrayMenu::handle(int id, const QString &eventId)
{
    if (id == rootId || eventId != QLatin1StringView("clicked"))
        return;
    // Later, so that the host has its answer before an action that quits.
    runLoop_.post(owner_, [this, id, revision = revision_] {
        if (revision == revision_)
            perform(id);
    });
}

void TrayMenu::perform(int id)
{
    // A copy, for the action may replace the menu.
    if (const auto action = entries_[static_cast<std::size_t>(id) - 1].action)
        action();
}

} // namespace quillmere
