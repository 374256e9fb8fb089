#pragma once

#include "platform/AudioStreams.h"
#include "platform/MediaRemote.h"
#include "platform/RunningApplications.h"
#include "platform/ScriptRunner.h"

#include <deque>
#include <map>
#include <vector>

namespace quillmere {

/// A media service that answers when the test wants it to.
class FakeMediaRemote : public MediaRemote
{
public:
    bool isAvailable() const override { return available; }
    void registerForNowPlayingNotifications() override { ++registrations; }
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

    void answer()
    {
        for (const auto &done : std::exchange(waiting_, {}))
            done(info);
    }

    bool available = true;
    QVariantMap info;
    int registrations = 0;
    int queries = 0;
    std::vector<int> commands;
    std::vector<double> positions;

private:
    std::vector<std::function<void(const QVariantMap &)>> waiting_;
};

/// Programs that answer when the test wants it to, by question and first argument.
class FakeScriptRunner : public ScriptRunner
{
public:
    Task run(QLatin1StringView question, const QStringList &arguments,
             std::function<void(const ScriptAnswer &)> done) override
    {
        const QString call = (QStringList{question} + arguments).join(u' ');
        calls.append(call);
        const int number = ++last_;
        waiting_[number] = {call, std::move(done)};
        return Task([this, number] { waiting_.erase(number); });
    }

    /// Answers the oldest call that waits; false if none does.
    bool answerOne()
    {
        if (waiting_.empty())
            return false;
        const auto [call, done] = waiting_.extract(waiting_.begin()).mapped();
        const auto found = answers.find(call);
        done(found == answers.end() ? ScriptAnswer{} : found->second);
        return true;
    }

    std::map<QString, ScriptAnswer> answers; ///< what is not there was answered without running
    QStringList calls;

private:
    struct Call {
        QString call;
        std::function<void(const ScriptAnswer &)> done;
    };
    int last_ = 0;
    std::map<int, Call> waiting_;
};

class FakeRunningApplications : public RunningApplications
{
public:
    QStringList running() const override { return list; }
    QString frontmost() const override { return front; }
    Task onChanged(std::function<void()>) override { return {}; }

    QStringList list;
    QString front;
};

/// Applications that make sound as the test says.
class FakeAudioStreams : public AudioStreams
{
public:
    void isPlaying(const QString &application, const Owner &owner,
                   std::function<void(bool)> done) override
    {
        waiting_.push_back([this, application, alive = owner.reference(), done] {
            if (!alive.expired())
                done(playing.contains(application));
        });
    }
    bool answerOne()
    {
        if (waiting_.empty())
            return false;
        const auto answer = waiting_.front();
        waiting_.pop_front();
        answer();
        return true;
    }

    QStringList playing;

private:
    std::deque<std::function<void()>> waiting_;
};

} // namespace quillmere
