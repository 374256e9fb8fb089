#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillmere {

/// What the index beside one of Thunderbird's mailboxes says of its messages: for those of an IMAP
/// account that is sooner true than their headers are.
class MorkFlags
{
public:
    /// Reads "Inbox.msf" and the like, a file of the Mork format of at most 32 MiB. Absent if it is
    /// none; what makes no sense in one is passed over.
    static std::optional<MorkFlags> read(const std::string &path);

    /// Whether the message of this identifier, without its angle brackets, is read or deleted;
    /// absent if the index does not know it.
    std::optional<bool> isSeen(const std::string &id) const;

private:
    std::unordered_map<std::string, bool> seen_;
};

} // namespace quillmere
