#pragma once

#include "platform/RunLoop.h"
#include "platform/ScriptRunner.h"

#include <QString>

#include <memory>

namespace quillmere {

/// Answers each question by a child process of its own, with limits on its time and output. An
/// answer that had to be cut short counts as none; what is wrong with a program is logged once,
/// until it works again.
class ProcessScriptRunner : public ScriptRunner
{
public:
    struct Places {
        QString replacements; ///< the user's folder: an executable file of a question's name there
        QString builtIn;      ///< goes before the one here
    };

    static constexpr Duration timeLimit = std::chrono::seconds(5);

    ProcessScriptRunner(RunLoop &runLoop, Places places);

    /// Ends all programs; no answer comes any more.
    ~ProcessScriptRunner() override;

    Task run(QLatin1StringView question, const QStringList &arguments,
             std::function<void(const ScriptAnswer &)> done) override;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace quillmere
