#pragma once

#include <QStringList>

namespace quillmere {

/// Identifiers that have been dealt with. When there are more than 200 it is cut to the 100 seen
/// last, so what a server still lists is never forgotten.
class SeenSet
{
public:
    bool contains(const QString &id) const { return ids_.contains(id); }

    /// True if it is new. One that is known counts as seen just now.
    bool insert(const QString &id);

    qsizetype size() const { return ids_.size(); }

private:
    QStringList ids_; ///< seen last at the end
};

} // namespace quillmere
