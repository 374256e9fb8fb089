#include "platform/linux/dbus/SearchProvider.h"

#include "platform/linux/dbus/ShortcutTypes.h"

#include "searchprovideradaptor.h"

namespace quillmere {

namespace {

constexpr qsizetype mostTerms = 64;
constexpr qsizetype mostResults = 64;

QVariantMap metaOf(const ShortcutMatch &match)
{
    return {{QStringLiteral("id"), match.id},
            {QStringLiteral("name"), match.title},
            {QStringLiteral("description"), match.subtitle},
            {QStringLiteral("gicon"), installedIcon(match.symbol)}};
}

} // namespace

SearchProvider::SearchProvider(ShortcutInbox &inbox)
    : inbox_(inbox)
{
    registerShortcutTypes();
    new SearchProviderAdaptor(this);
}

QStringList SearchProvider::GetInitialResultSet(const QStringList &terms)
{
    inbox_.answer(*this, [query = terms.mid(0, mostTerms).join(u' ')](const auto &requests) {
        QStringList ids;
        for (const ShortcutMatch &match : requests.search(query))
            ids.append(match.id);
        return QVariantList{ids};
    });
    return {};
}

QStringList SearchProvider::GetSubsearchResultSet(const QStringList & /*previousResults*/,
                                                  const QStringList &terms)
{
    // Typing on may find more, not only less: "timer 1" and then "timer 10".
    return GetInitialResultSet(terms);
}

QList<QVariantMap> SearchProvider::GetResultMetas(const QStringList &identifiers)
{
    inbox_.answer(*this, [ids = identifiers.mid(0, mostResults)](const auto &requests) {
        QList<QVariantMap> metas;
        for (const ShortcutMatch &match : requests.describe(ids))
            metas.append(metaOf(match));
        return QVariantList{QVariant::fromValue(metas)};
    });
    return {};
}

void SearchProvider::ActivateResult(const QString &identifier, const QStringList & /*terms*/,
                                    uint /*timestamp*/)
{
    inbox_.answer(*this, [identifier](const auto &requests) {
        requests.run(identifier);
        return QVariantList();
    });
}

void SearchProvider::LaunchSearch(const QStringList & /*terms*/, uint /*timestamp*/)
{
    inbox_.answer(*this, [](const auto &requests) {
        requests.show();
        return QVariantList();
    });
}

} // namespace quillmere
