#pragma once

#include "platform/Task.h"

namespace quillmere {

class IslandDebugLogger;
class UserDefaults;

/// Keeps the debug log's switch and categories as the local keys say, live: `debugLogEnabled`
/// (default off) and `debugLogCategories` (a list of category texts; absent = all).
class DebugLogSwitch
{
public:
    DebugLogSwitch(UserDefaults &localDefaults, IslandDebugLogger &logger);

    /// Takes the keys as they are now; needed only after writing them here.
    void apply();

private:
    UserDefaults &localDefaults_;
    IslandDebugLogger &logger_;
    Task observer_;
};

} // namespace quillmere
