#pragma once

#include "platform/StatusItem.h"

#include <optional>

namespace quillmere {

/// Remembers what it was told to show.
class FakeStatusItem : public StatusItem
{
public:
    void show(const StatusItemContent &content) override { shown = content; }
    void remove() override { shown.reset(); }

    std::optional<StatusItemContent> shown;
};

} // namespace quillmere
