#pragma once

#include <memory>

namespace quillmere {

/// Tells posted work whether its owner still lives. A class that posts work keeps an Owner as its
/// last member and hands it to RunLoop::post or RunLoop::background; once the object is destroyed,
/// what was posted for it becomes a no-op. Check and use on the main thread only.
class Owner
{
public:
    using Reference = std::weak_ptr<const char>;

    Owner() = default;
    Owner(const Owner &) = delete;
    Owner &operator=(const Owner &) = delete;

    Reference reference() const { return life_; }

private:
    std::shared_ptr<const char> life_ = std::make_shared<const char>();
};

} // namespace quillmere
