#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// The beginning of a file, with all of any sensible header; absent if it cannot be read.
std::optional<std::string> readHead(const std::string &path);

/// Whether a message is marked there as read or deleted, by Thunderbird or by older programs.
bool isSeenByHeader(std::string_view message);

/// Its identifier without the angle brackets; empty if it has none on the line of its name.
std::string messageId(std::string_view message);

} // namespace quillmere
