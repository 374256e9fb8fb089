#pragma once

#include "helpers/MailMessage.h"

#include <optional>
#include <string>

namespace quillmere {

/// Where a message's flags are.
enum class MailFlags {
    InName,  ///< of its file, as the Maildir format has it
    InHeader ///< as Thunderbird has it
};

/// Whether a folder is one of the Maildir format, to look at its parts.
bool isMaildir(const std::string &path);

UnreadMessages readMaildir(const std::string &path, MailFlags flags);

/// Counts what is in the last 16 MiB. An index of Thunderbird's beside it goes before the headers.
UnreadMessages readMbox(const std::string &path);

/// The mail of notmuch that is in the inbox and unread; absent where notmuch is not set up.
std::optional<UnreadMessages> askNotmuch();

/// When the message in a file came: what its name tells as the Maildir format has it, else when the
/// file was written. Microseconds since 1970.
std::int64_t arrivalOf(const std::string &path);

/// When a file was written last, in microseconds since 1970; zero if it is gone.
std::int64_t writtenAt(const std::string &path);

} // namespace quillmere
