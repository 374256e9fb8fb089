#pragma once

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

namespace quillmere {

/// Where the desktop looks for who answers an address, and who that is to be.
struct SchemeHandlerPlaces {
    QString configHome;
    QString dataHome;
    QString program; ///< absolute path; it is given the address as its argument
};

/// Has the desktop hand addresses of `scheme` to the program: a desktop entry that no menu shows,
/// and a line in the user's list of default applications. Waits for the disk; any thread.
tl::expected<void, QString> installSchemeHandler(const SchemeHandlerPlaces &places,
                                                 const QString &scheme);

/// Takes both away again, whichever scheme they were for. Harmless if there are none.
void removeSchemeHandler(const SchemeHandlerPlaces &places);

/// The list of default applications with ours for `scheme`, and without ours for any. All other
/// lines stay as they are.
QByteArray withHandler(const QByteArray &list, const QString &scheme);
QByteArray withoutHandler(const QByteArray &list);

} // namespace quillmere
