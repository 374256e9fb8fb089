#pragma once

#include <QString>

namespace quillmere {

/// A weather's label in the user's language; one that is not known stays as it is. Records keep the
/// English label, so that a stored or published one does not depend on who reads it.
QString conditionText(const QString &label);

} // namespace quillmere
