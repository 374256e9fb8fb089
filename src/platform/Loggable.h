#pragma once

#include <QString>

namespace quillmere {

/// A text of another program, a page or a server as it may go to the console: one line, no control
/// characters.
QString loggable(QString text);

} // namespace quillmere
