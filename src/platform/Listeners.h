#pragma once

#include "platform/Task.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace quillmere {

/// A list of callbacks with RAII registration. A callback may add or remove listeners, itself
/// included, while the list is being notified; one removed meanwhile is not called. Main thread
/// only.
template <class... Args>
class Listeners
{
public:
    using Callback = std::function<void(Args...)>;

    Task add(Callback callback)
    {
        const auto id = list_->next++;
        list_->callbacks.emplace(id, std::make_shared<Callback>(std::move(callback)));
        return Task([list = std::weak_ptr(list_), id] {
            if (const auto alive = list.lock())
                alive->callbacks.erase(id);
        });
    }

    void notify(Args... args) const
    {
        const auto list = list_;
        std::vector<unsigned long> ids;
        for (const auto &entry : list->callbacks)
            ids.push_back(entry.first);
        for (const auto id : ids) {
            const auto found = list->callbacks.find(id);
            if (found == list->callbacks.end())
                continue;
            const auto callback = found->second;
            (*callback)(args...);
        }
    }

    bool isEmpty() const { return list_->callbacks.empty(); }

private:
    struct List {
        std::map<unsigned long, std::shared_ptr<Callback>> callbacks;
        unsigned long next = 0;
    };
    std::shared_ptr<List> list_ = std::make_shared<List>();
};

} // namespace quillmere
