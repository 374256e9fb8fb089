#pragma once

#include <QString>

/// The user's base directories as the XDG Base Directory Specification gives them: an environment
/// variable where it holds an absolute path, else the default below the home directory.
namespace quillmere::xdg {

QString configHome();
QString dataHome();
QString stateHome();

} // namespace quillmere::xdg
