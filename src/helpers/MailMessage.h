#pragma once

#include <cstdint>
#include <string>

namespace quillmere {

/// A message in a mailbox, and where it stands in the order of arrival.
struct MailMessage {
    std::int64_t arrival = 0; ///< microseconds since 1970
    std::string name{};       ///< what the mailbox tells it apart by
    std::string head{};       ///< as it is stored: its header, and perhaps some of its text
};

/// What a mailbox has unread.
struct UnreadMessages {
    std::uint64_t count = 0;
    MailMessage newest{}; ///< without meaning if there is none
};

/// What a message's header says, decoded, each on one line and in UTF-8.
struct MailHeader {
    std::string id{}; ///< empty if it has none
    std::string subject{};
    std::string sender{};

    bool operator==(const MailHeader &) const = default;
};

/// Reads what is there of a header, however broken: text of an unknown or wrong character set is
/// read as UTF-8 or else as Windows-1252.
MailHeader readMailHeader(const std::string &head);

} // namespace quillmere
