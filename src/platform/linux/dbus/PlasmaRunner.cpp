#include "platform/linux/dbus/PlasmaRunner.h"

#include "plasmarunneradaptor.h"

namespace quillmere {

namespace {

// How sure a match is, in the numbers of the interface.
constexpr int possibleMatch = 30;
constexpr int exactMatch = 100;

RunnerMatch toRunnerMatch(const ShortcutMatch &match)
{
    return {.id = match.id,
            .text = match.title,
            .icon = installedIcon(match.symbol),
            .type = match.relevance >= 1 ? exactMatch : possibleMatch,
            .relevance = match.relevance,
            .properties = {{QStringLiteral("subtext"), match.subtitle},
                           {QStringLiteral("category"), QStringLiteral("Quillmere")}}};
}

} // namespace

PlasmaRunner::PlasmaRunner(ShortcutInbox &inbox)
    : inbox_(inbox)
{
    registerShortcutTypes();
    new PlasmaRunnerAdaptor(this);
}

QList<TextTriple> PlasmaRunner::Actions()
{
    return {}; // a match has no actions besides being run
}

QList<RunnerMatch> PlasmaRunner::Match(const QString &query)
{
    inbox_.answer(*this, [query](const auto &requests) {
        RunnerMatches matches;
        for (const ShortcutMatch &match : requests.search(query))
            matches.append(toRunnerMatch(match));
        return QVariantList{QVariant::fromValue(matches)};
    });
    return {};
}

void PlasmaRunner::Run(const QString &matchId, const QString & /*actionId*/)
{
    inbox_.answer(*this, [matchId](const auto &requests) {
        requests.run(matchId);
        return QVariantList();
    });
}

void PlasmaRunner::SetActivationToken(const QString & /*token*/)
{
    // No shortcut opens a window that would need it.
}

void PlasmaRunner::Teardown() {}

} // namespace quillmere
