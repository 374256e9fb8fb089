#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace quillmere {

/// The command line of a running process, the program first; empty if it is gone.
std::vector<std::string> commandLine(pid_t process);

/// Zero if it is gone.
pid_t parentOf(pid_t process);

/// The user's own processes.
std::vector<pid_t> ownProcesses();

} // namespace quillmere
