#pragma once

#include <QString>

namespace quillmere {

/// A track's title, fit to be shown. `hideExtras` takes off what only describes the upload or the
/// release: "(Official Video)", "[HD]", "- Remastered 2011", "feat. ...". What tells one recording
/// from another stays ("(Live)", "(Acoustic)"), and a title made of nothing but extras stays whole.
QString mediaTitle(const QString &title, bool hideExtras);

} // namespace quillmere
