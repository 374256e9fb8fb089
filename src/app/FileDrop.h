#pragma once

#include "island/HUDContent.h"

#include <QList>
#include <QUrl>
#include <QVariantMap>

namespace quillmere {

/// How long the HUD of a drop shows, in seconds.
inline constexpr double fileAddedDuration = 3.0;

/// What "QuillmereFileDropped" carries, and how it is read again.
QVariantMap fileDropInfo(const QList<QUrl> &files);
QList<QUrl> droppedFiles(const QVariantMap &userInfo);

/// The HUD that confirms a drop; of several files it names the first and counts the others.
HUDContent fileAddedHUD(const QList<QUrl> &files);

} // namespace quillmere
