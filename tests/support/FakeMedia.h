#pragma once

#include "platform/AudioStreams.h"
#include "platform/Listeners.h"
#include "platform/MediaRemote.h"
#include "platform/RunLoop.h"
#include "platform/RunningApplications.h"
#include "platform/ScriptRunner.h"

#include <map>
#include <vector>

namespace quillmere {

/// A media service that answers when the test wants it to.
class FakeMediaRemote : public MediaRemote
{
public:
    bool isAvailable() const override { return available; }
    void registerForNowPlayingNotifications() override {}
    void getNowPlayingInfo(const Owner &owner,
                           std::function<void(const QVariantMap &)> done) override
    {
        ++queries;
        waiting_.push_back([alive = owner.reference(), done](const QVariantMap &answer) {
            if (!alive.expired())
                done(answer);
        });
    }
    bool sendCommand(Command command) override
    {
        commands.push_back(static_cast<int>(command));
        return true;
    }
    void setElapsedTime(double seconds) override { positions.push_back(seconds); }
    std::optional<bool> isShuffling() const override { return std::nullopt; }
    std::optional<RepeatMode> repeatMode() const override { return std::nullopt; }
    bool toggleShuffle() override { return false; }
    bool cycleRepeat() override { return false; }
    QStringList players() override { return {}; }

    void answer()
    {
        for (const auto &done : std::exchange(waiting_, {}))
            done(info);
    }

    bool available = true;
    QVariantMap info;
    int queries = 0;
    std::vector<int> commands;
    std::vector<double> positions;

private:
    std::vector<std::function<void(const QVariantMap &)>> waiting_;
};

/// Programs that answer when the test wants it to.
class FakeScriptRunner : public ScriptRunner
{
public:
    Task run(QLatin1StringView question, const QStringList &arguments,
             std::function<void(const ScriptAnswer &)> done) override
    {
        calls.append((QStringList{question} + arguments).join(u' '));
        const auto number = calls.size() - 1;
        waiting_[number] = std::move(done);
        return Task([this, number] { waiting_.erase(number); });
    }

    /// Answers the oldest call that waits; false if none does.
    bool answerOne()
    {
        if (waiting_.empty())
            return false;
        const auto call = waiting_.extract(waiting_.begin());
        call.mapped()(answers[calls.at(call.key())]);
        return true;
    }

    std::map<QString, ScriptAnswer> answers; ///< by call; none: answered without running
    QStringList calls;                       ///< question and arguments of all there were

private:
    std::map<qsizetype, std::function<void(const ScriptAnswer &)>> waiting_;
};

class FakeRunningApplications : public RunningApplications
{
public:
    QStringList running() const override { return list; }
    QString frontmost() const override { return front; }
    Task onChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }

    void activate(const QString &application)
    {
        front = application;
        listeners_.notify();
    }

    QStringList list;
    QString front;

private:
    Listeners<> listeners_;
};

/// Applications that make sound as the test says. Answers when the run loop settles.
class FakeAudioStreams : public AudioStreams
{
public:
    explicit FakeAudioStreams(RunLoop &runLoop)
        : runLoop_(runLoop)
    {
    }
    void isPlaying(const QString &application, const Owner &owner,
                   std::function<void(bool)> done) override
    {
        runLoop_.post(owner, [this, application, done] { done(playing.contains(application)); });
    }

    QStringList playing;

private:
    RunLoop &runLoop_;
};

} // namespace quillmere
