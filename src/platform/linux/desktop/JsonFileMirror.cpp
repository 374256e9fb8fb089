#include "platform/linux/desktop/JsonFileMirror.h"

#include "platform/RunLoop.h"
#include "platform/linux/desktop/FileWatch.h"
#include "platform/linux/desktop/Files.h"

#include <QFileInfo>

namespace quillmere {

struct JsonFileMirror::Reading {
    enum class State { Absent, Empty, Object, Unreadable };
    State state = State::Absent;
    Json object = Json::object();
    QString problem;
};

namespace {

QHash<QString, QVariant> differences(const Json &before, const Json &after)
{
    QHash<std::string, const Json *> gone;
    for (const auto &[key, value] : before.items())
        gone.insert(key, &value);
    QHash<QString, QVariant> result;
    for (const auto &[key, value] : after.items()) {
        const auto *old = gone.take(key);
        if (!old || *old != value)
            result.insert(QString::fromStdString(key), toVariant(value));
    }
    for (auto it = gone.begin(); it != gone.end(); ++it)
        result.insert(QString::fromStdString(it.key()), QVariant());
    return result;
}

void applyTo(Json &object, const QString &key, const std::optional<Json> &value)
{
    const auto name = key.toStdString();
    if (value)
        object[name] = *value;
    else
        object.erase(name);
}

/// We never write what we would refuse to read.
bool canBeReadAgain(const Json &object)
{
    return parseObject(toText(object)).has_value();
}

} // namespace

JsonFileMirror::JsonFileMirror(RunLoop &runLoop, QString path, bool ownsDirectory,
                               std::shared_ptr<WatchedFiles> watch)
    : runLoop_(runLoop)
    , path_(std::move(path))
    , ownsDirectory_(ownsDirectory)
    , watch_(std::move(watch))
{
}

void JsonFileMirror::change(const QString &key, Change change)
{
    const std::scoped_lock lock(mutex_);
    changes_[key] = std::move(change);
}

JsonFileMirror::Outcome JsonFileMirror::look(Patience patience)
{
    lookClaimed_ = false;
    auto changes = takeChanges();
    Outcome outcome;
    if (!directoryIsThere()) {
        for (const auto &[key, change] : changes)
            outcome.written[key] = change.serial;
        return outcome;
    }
    watch_->add(path_);
    const auto reading = read();
    outcome.unsettled = patience == Patience::Wait && mayBeHalfWritten(reading);
    const bool blocked =
        !outcome.unsettled && reading.state == Reading::State::Unreadable && !setAside(reading);
    if (outcome.unsettled || blocked) {
        putBack(std::move(changes));
        return outcome;
    }
    if (reading.state == Reading::State::Object)
        owesCopy_ = false;
    const Json base = owesCopy_ ? known_ : reading.object;
    outcome.changes = differences(known_, base);
    for (const auto &[key, change] : changes)
        outcome.changes.remove(key);
    known_ = base;
    write(base, std::move(changes), owesCopy_, outcome);
    return outcome;
}

bool JsonFileMirror::isBehind()
{
    const std::scoped_lock lock(mutex_);
    return !changes_.empty() || owesCopy_;
}

JsonFileMirror::Changes JsonFileMirror::takeChanges()
{
    const std::scoped_lock lock(mutex_);
    return std::exchange(changes_, {});
}

void JsonFileMirror::putBack(Changes changes)
{
    const std::scoped_lock lock(mutex_);
    changes_.merge(changes); // keeps what was changed again meanwhile
}

bool JsonFileMirror::directoryIsThere() const
{
    return ownsDirectory_ || QFileInfo(QFileInfo(path_).absolutePath()).isDir();
}

JsonFileMirror::Reading JsonFileMirror::read() const
{
    const auto contents = files::read(path_, largestJson);
    if (contents.state == files::Contents::State::Absent)
        return {};
    if (contents.state == files::Contents::State::Unreadable)
        return {Reading::State::Unreadable, Json::object(), contents.problem};
    auto object = parseObject(contents.bytes);
    if (!object)
        return {Reading::State::Unreadable, Json::object(), object.error()};
    const auto state = object->empty() ? Reading::State::Empty : Reading::State::Object;
    return {state, std::move(*object), {}};
}

bool JsonFileMirror::mayBeHalfWritten(const Reading &reading) const
{
    switch (reading.state) {
    case Reading::State::Object:
        return false;
    case Reading::State::Absent:
    case Reading::State::Empty:
        return !known_.empty() && !owesCopy_;
    case Reading::State::Unreadable:
        break;
    }
    return true;
}

bool JsonFileMirror::setAside(const Reading &reading)
{
    const auto aside = files::setAside(path_, runLoop_.date());
    if (aside) {
        qWarning("[Quillmere] %s cannot be used (%s) and was set aside as %s",
                 qUtf8Printable(path_), qUtf8Printable(reading.problem), qUtf8Printable(*aside));
        owesCopy_ = !known_.empty();
        return true;
    }
    report(QStringLiteral("%1 cannot be used (%2) nor set aside (%3); changes are not stored")
               .arg(path_, reading.problem, aside.error()));
    return false;
}

void JsonFileMirror::write(const Json &base, Changes changes, bool differs, Outcome &outcome)
{
    Json wanted = merged(base, changes);
    if (differs || wanted != base) {
        if (ownsDirectory_)
            files::makePrivateDirectory(QFileInfo(path_).absolutePath());
        if (const auto done = files::replace(path_, toText(wanted)); !done) {
            report(QStringLiteral("%1 cannot be written (%2); changes are kept in memory only")
                       .arg(path_, done.error()));
            putBack(std::move(changes));
            return;
        }
        watch_->add(path_); // the directory may be new
    }
    reported_.clear();
    owesCopy_ = false;
    known_ = std::move(wanted);
    for (const auto &[key, change] : changes)
        outcome.written[key] = change.serial;
}

/// Leaves out a change that would make the file unreadable to us.
Json JsonFileMirror::merged(const Json &base, const Changes &changes)
{
    Json all = base;
    for (const auto &[key, change] : changes)
        applyTo(all, key, change.value);
    if (changes.empty() || canBeReadAgain(all))
        return all;
    Json fitting = base;
    for (const auto &[key, change] : changes) {
        Json candidate = fitting;
        applyTo(candidate, key, change.value);
        if (canBeReadAgain(candidate))
            fitting = std::move(candidate);
        else
            qWarning("[Quillmere] The value of %s is too large for %s and is not stored",
                     qUtf8Printable(key), qUtf8Printable(path_));
    }
    return fitting;
}

void JsonFileMirror::report(const QString &problem)
{
    if (problem == reported_)
        return;
    reported_ = problem;
    qWarning("[Quillmere] %s", qUtf8Printable(problem));
}

} // namespace quillmere
