#pragma once

namespace quillmere {

/// One sample of the machine's load. GB are units of 2^30 bytes.
struct SystemStats {
    double cpuUsage = 0;    ///< percent, 0..100
    double memoryUsage = 0; ///< percent, 0..100
    double memoryUsedGB = 0;
    double memoryTotalGB = 0;
    double diskUsage = 0; ///< percent, 0..100
    double diskUsedGB = 0;
    double diskTotalGB = 0;

    bool operator==(const SystemStats &) const = default;
};

/// One sample of the network's throughput, in bytes a second.
struct NetworkSpeed {
    double download = 0;
    double upload = 0;

    bool operator==(const NetworkSpeed &) const = default;
};

} // namespace quillmere
