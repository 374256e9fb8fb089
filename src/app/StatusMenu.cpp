#include "app/StatusMenu.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct StatusMenu {
    Q_DECLARE_TR_FUNCTIONS(StatusMenu)
};

StatusMenuEntry separator()
{
    return {{}, {}, {}, true};
}

} // namespace

std::vector<StatusMenuEntry> statusMenu(const StatusMenuActions &actions)
{
    return {
        {StatusMenu::tr("Show Island"), u's', actions.showIsland},
        {StatusMenu::tr("Refresh Now Playing"), u'r', actions.refreshNowPlaying},
        separator(),
        {StatusMenu::tr("Check for Updates…"), u'u', actions.checkForUpdates},
        {StatusMenu::tr("Settings…"), u',', actions.openSettings},
        separator(),
        {StatusMenu::tr("Quit Quillmere"), u'q', actions.quit},
    };
}

} // namespace quillmere
