#include "google/SeenSet.h"

namespace quillmere {

namespace {

constexpr qsizetype most = 200;
constexpr qsizetype keptOfTooMany = 100;

} // namespace

bool SeenSet::insert(const QString &id)
{
    const bool isNew = !ids_.removeOne(id);
    ids_.append(id);
    if (ids_.size() > most)
        ids_.remove(0, ids_.size() - keptOfTooMany);
    return isNew;
}

} // namespace quillmere
