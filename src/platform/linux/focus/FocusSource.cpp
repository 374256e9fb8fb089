#include "platform/linux/focus/FocusSource.h"

#include <utility>

namespace quillmere {

void FocusSource::tell(std::optional<FocusReport> report)
{
    if (std::exchange(report_, report) != report && onChanged)
        onChanged();
}

} // namespace quillmere
