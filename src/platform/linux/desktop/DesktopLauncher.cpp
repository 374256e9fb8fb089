#include "platform/linux/desktop/DesktopLauncher.h"

#include "platform/linux/desktop/DesktopEntries.h"

#include <QDebug>
#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace quillmere {

namespace {

bool launch(const QString &entryFile)
{
    QProcess program;
    program.setProgram(QStringLiteral("gio"));
    program.setArguments({QStringLiteral("launch"), entryFile});
    program.setStandardInputFile(QProcess::nullDevice());
    program.setStandardOutputFile(QProcess::nullDevice());
    program.setStandardErrorFile(QProcess::nullDevice());
    return program.startDetached();
}

} // namespace

bool DesktopLauncher::open(const QString &bundleID)
{
    const QString file = desktopEntryOf(bundleID);
    if (!file.isEmpty() && launch(file))
        return true;
    const QString page = pageOf(bundleID);
    if (!page.isEmpty() && QDesktopServices::openUrl(QUrl(page)))
        return true;
    qWarning("[Quillmere] There is no application %s to open", qUtf8Printable(bundleID));
    return false;
}

} // namespace quillmere
