#pragma once

#include <functional>
#include <utility>

namespace quillmere {

/// A handle to something that goes on until it is cancelled: a delayed action, a repeating timer, a
/// registered listener. Destroying or replacing the handle cancels it; cancelling twice is
/// harmless, and so is cancelling after the thing it stood for is gone.
class [[nodiscard]] Task
{
public:
    Task() = default;
    explicit Task(std::function<void()> cancel)
        : cancel_(std::move(cancel))
    {
    }
    Task(Task &&other) noexcept
        : cancel_(std::exchange(other.cancel_, nullptr))
    {
    }
    Task &operator=(Task &&other) noexcept
    {
        if (this != &other) {
            cancel();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }
    ~Task() { cancel(); }

    void cancel()
    {
        if (auto action = std::exchange(cancel_, nullptr))
            action();
    }

    /// True while the handle stands for something, also after a delayed action has run by itself.
    explicit operator bool() const { return cancel_ != nullptr; }

private:
    std::function<void()> cancel_;
};

} // namespace quillmere
