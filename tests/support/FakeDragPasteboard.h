#pragma once

#include "platform/DragPasteboard.h"

#include <utility>
#include <vector>

namespace quillmere {

/// A drag pasteboard that answers when the test wants it to.
class FakeDragPasteboard : public DragPasteboard
{
public:
    int changeCount() const override { return count_; }
    void containsFileURLs(const Owner &owner, std::function<void(bool)> answer) override
    {
        ++timesAsked;
        questions_.push_back([alive = owner.reference(), answer = std::move(answer)](bool files) {
            if (!alive.expired())
                answer(files);
        });
        if (answersAtOnce)
            answerAll();
    }

    /// Another drag begins.
    void put(bool files)
    {
        ++count_;
        files_ = files;
        questions_.clear();
    }
    void answerAll()
    {
        for (const auto &question : std::exchange(questions_, {}))
            question(files_);
    }

    bool answersAtOnce = true;
    int timesAsked = 0;

private:
    int count_ = 0;
    bool files_ = false;
    std::vector<std::function<void(bool)>> questions_;
};

} // namespace quillmere
