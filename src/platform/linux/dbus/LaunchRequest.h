#pragma once

#include <QStringList>
#include <QVariantMap>

namespace quillmere {

/// What this start of the program was asked for.
struct LaunchRequest {
    QStringList uris{};
    QVariantMap platformData{}; ///< as org.freedesktop.Application defines it
};

/// The launcher's activation token from the environment. Call before the QGuiApplication exists:
/// Qt takes the variables out of the environment.
QVariantMap platformDataFromEnvironment();

} // namespace quillmere
