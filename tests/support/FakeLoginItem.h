#pragma once

#include "platform/LoginItem.h"

#include <vector>

namespace quillmere {

/// Remembers what was asked of it: true for registered, false for unregistered, in order.
class FakeLoginItem : public LoginItem
{
public:
    void registerItem() override { requests.push_back(true); }
    void unregisterItem() override { requests.push_back(false); }

    bool isRegistered() const { return !requests.empty() && requests.back(); }

    std::vector<bool> requests;
};

} // namespace quillmere
