#include "platform/linux/audio/PulseAudioStreams.h"

#include "platform/linux/core/BundleIdentifiers.h"

#include <algorithm>

namespace quillmere {

namespace {

QString property(const pa_proplist &properties, const char *key)
{
    return QString::fromUtf8(pa_proplist_gets(&properties, key));
}

} // namespace

bool isStreamOf(const pa_proplist &properties, const QString &bundleIdentifier)
{
    const auto is = [&bundleIdentifier](const QString &name) {
        return !name.isEmpty() && canonicalBundleIdentifier(name) == bundleIdentifier;
    };
    const QString program = property(properties, PA_PROP_APPLICATION_PROCESS_BINARY);
    if (is(property(properties, "pipewire.access.portal.app_id")) ||
        is(property(properties, PA_PROP_APPLICATION_ID)) || is(program))
        return true;
    // Whatever is built on a browser's engine may carry the browser's name: the program knows
    // better.
    return program.isEmpty() && is(property(properties, PA_PROP_APPLICATION_NAME));
}

PulseAudioStreams::PulseAudioStreams(RunLoop &runLoop, PulseAudioHardware &hardware)
    : runLoop_(runLoop)
    , hardware_(hardware)
{
}

PulseAudioStreams::~PulseAudioStreams()
{
    for (const Question &question : questions_) {
        pa_operation_set_state_callback(question.operation, nullptr, nullptr);
        pa_operation_cancel(question.operation);
        pa_operation_unref(question.operation);
    }
}

void PulseAudioStreams::isPlaying(const QString &bundleIdentifier, const Owner &owner,
                                  std::function<void(bool)> done)
{
    Question &question = questions_.emplace_back(
        Question{*this, bundleIdentifier, owner.reference(), std::move(done)});
    if (pa_context *context = hardware_.context())
        question.operation = pa_context_get_sink_input_info_list(context, takeStream, &question);
    if (!question.operation)
        return answer(question);
    // Unlike the list's own end it also tells of a connection that is lost meanwhile.
    pa_operation_set_state_callback(question.operation, operationChanged, &question);
    question.limit =
        runLoop_.after(timeLimit, [&question] { pa_operation_cancel(question.operation); });
}

void PulseAudioStreams::answer(Question &question)
{
    runLoop_.post(
        [owner = question.owner, done = std::move(question.done), isPlaying = question.isPlaying] {
            if (!owner.expired())
                done(isPlaying);
        });
    letRun(question.operation);
    const auto isThis = [&question](const Question &other) { return &other == &question; };
    questions_.erase(std::ranges::find_if(questions_, isThis));
}

void PulseAudioStreams::takeStream(pa_context *, const pa_sink_input_info *stream, int end,
                                   void *question)
{
    auto &asked = *static_cast<Question *>(question);
    if (!end && !stream->corked && !stream->mute &&
        isStreamOf(*stream->proplist, asked.bundleIdentifier))
        asked.isPlaying = true;
}

void PulseAudioStreams::operationChanged(pa_operation *operation, void *question)
{
    if (pa_operation_get_state(operation) == PA_OPERATION_RUNNING)
        return;
    auto &asked = *static_cast<Question *>(question);
    asked.streams.answer(asked);
}

} // namespace quillmere
