#pragma once

#include "platform/ApplicationIcons.h"
#include "platform/RunLoop.h"

#include <QHash>
#include <QSet>

#include <functional>

namespace quillmere {

/// The icons of desktop entries, from the desktop's icon theme. Looked for and decoded in the
/// background. Main thread only.
class DesktopIcons : public ApplicationIcons
{
public:
    /// `themeName` names the icon theme in use.
    DesktopIcons(RunLoop &runLoop, std::function<QString()> themeName);

    QImage icon(const QString &bundleID) override;

private:
    RunLoop &runLoop_;
    std::function<QString()> themeName_;
    QHash<QString, QImage> icons_;
    QSet<QString> inWork_;
    Owner owner_;
};

} // namespace quillmere
