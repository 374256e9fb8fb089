#include "platform/linux/desktop/JsonStore.h"

#include <QFileInfo>

namespace quillmere {

using namespace std::chrono_literals;

namespace {

/// Editors and sync clients touch a file several times for one change.
constexpr Duration eventsSettle = 200ms;
/// How long someone may take to write a file before we take it for broken.
constexpr Duration writersPatience = 2s;

} // namespace

JsonStore::JsonStore(RunLoop &runLoop, const QString &path, Options options)
    : runLoop_(runLoop)
    , queue_(runLoop.makeSerialQueue(QFileInfo(path).fileName()))
{
    auto watched = std::make_shared<WatchedFiles>();
    mirror_ = std::make_shared<JsonFileMirror>(runLoop, path, options.ownsDirectory, watched);
    watch_ = std::make_unique<FileWatch>(std::move(watched), [this] { lookSoon(); });
    if (options.loadsAtOnce)
        absorb(mirror_->look(Patience::GiveUp));
}

JsonStore::~JsonStore() = default;

bool JsonStore::setValue(const QString &key, const QVariant &value)
{
    std::optional<Json> json;
    if (value.isValid()) {
        json = toJson(value);
        if (!json)
            return false;
    }
    const auto held = values_.constFind(key);
    const bool isHeld = held != values_.constEnd();
    if (isHeld ? json && toJson(*held) == json : !json)
        return true;
    if (json)
        values_.insert(key, toVariant(*json));
    else
        values_.remove(key);
    unwritten_[key] = ++lastSerial_;
    mirror_->change(key, {std::move(json), lastSerial_});
    return true;
}

void JsonStore::synchronize()
{
    if (mirror_->claimLook())
        look(Patience::Wait);
}

void JsonStore::flush()
{
    queue_->drain();
    if (!mirror_->isBehind())
        return;
    look(Patience::GiveUp);
    queue_->drain();
}

void JsonStore::look(Patience patience)
{
    queue_->async([this, owner = owner_.reference(), mirror = mirror_, &loop = runLoop_, patience] {
        loop.post([this, owner, outcome = mirror->look(patience)] {
            if (!owner.expired())
                absorb(outcome);
        });
    });
}

void JsonStore::lookSoon()
{
    if (lookIsPlanned_)
        return;
    lookIsPlanned_ = true;
    lookSoon_ = runLoop_.after(eventsSettle, [this] {
        lookIsPlanned_ = false;
        synchronize();
    });
}

void JsonStore::absorb(const JsonFileMirror::Outcome &outcome)
{
    for (const auto &[key, serial] : outcome.written) {
        if (unwritten_.value(key) == serial)
            unwritten_.remove(key);
    }
    QStringList changed;
    for (auto it = outcome.changes.begin(); it != outcome.changes.end(); ++it) {
        if (unwritten_.contains(it.key()))
            continue;
        if (it.value().isValid())
            values_.insert(it.key(), it.value());
        else
            values_.remove(it.key());
        changed.append(it.key());
    }
    secondLook_.cancel();
    if (outcome.unsettled)
        secondLook_ = runLoop_.after(writersPatience, [this] { look(Patience::GiveUp); });
    changed.sort();
    if (!changed.isEmpty() && onOutsideChange)
        onOutsideChange(changed);
}

} // namespace quillmere
