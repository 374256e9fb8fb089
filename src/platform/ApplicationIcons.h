#pragma once

#include <QImage>
#include <QString>

namespace quillmere {

/// What applications look like on this desktop. Main thread only.
class ApplicationIcons
{
public:
    virtual ~ApplicationIcons() = default;

    /// Pixels of an icon's side: as large as it is ever drawn.
    static constexpr int side = 96;

    /// The icon of the application with this bundle identifier, as far as it is known: null until
    /// it was asked for once and found, and where there is none. Answers at once, and has it looked
    /// for afresh meanwhile.
    virtual QImage icon(const QString &bundleID) = 0;
};

} // namespace quillmere
