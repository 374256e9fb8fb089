#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace quillmere {

/// Reads a regular file of at most `limit` bytes; anything else counts as missing and does not hold
/// the reader up, whatever it is.
std::optional<std::string> readFile(const std::string &path, std::size_t limit);

/// The same of as much of it as there is, from the beginning or the end.
std::optional<std::string> readBeginning(const std::string &path, std::size_t limit);
std::optional<std::string> readEnd(const std::string &path, std::size_t limit);

} // namespace quillmere
