#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace quillmere {

/// The body of a page on 127.0.0.1 that was answered with 200 before `deadline`; absent otherwise,
/// and if it is larger than `limit` or comes in pieces of its own kind (chunks), which no server
/// that is asked here uses.
std::optional<std::string> getFromLoopback(std::uint16_t port, const std::string &path,
                                           std::size_t limit,
                                           std::chrono::steady_clock::time_point deadline);

} // namespace quillmere
