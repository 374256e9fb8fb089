// Prints the brightness of the first external display that tells it over DDC/CI: a line from
// "brightness 0.0000" to "brightness 1.0000", and another whenever it has changed. Other lines are
// the library's own talk, which begins before main(). Ends when its standard input does, or when no
// display answers at the start.

#include <ddcutil_c_api.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr DDCA_Vcp_Feature_Code luminance = 0x10;
constexpr int interval = 5000;       // milliseconds
constexpr int sleepInterval = 30000; // a display that sleeps does not answer, and wakes unannounced
constexpr int silencesOfSleep = 12;

enum ExitStatus { ended = 0, cannotWrite = 1, noDisplay = 3 };

int word(unsigned high, unsigned low)
{
    return static_cast<int>(high << 8U | low);
}

/// 0..1. The display is open no longer than that takes, so that other programs can set it.
std::optional<double> brightness(DDCA_Display_Ref display)
{
    DDCA_Display_Handle handle = nullptr;
    if (::ddca_open_display2(display, false, &handle) != 0)
        return std::nullopt;
    DDCA_Non_Table_Vcp_Value value{};
    const bool answered = ::ddca_get_non_table_vcp_value(handle, luminance, &value) == 0;
    ::ddca_close_display(handle);
    const int maximum = word(value.mh, value.ml);
    const int current = word(value.sh, value.sl);
    if (!answered || maximum <= 0 || current > maximum)
        return std::nullopt;
    return static_cast<double>(current) / maximum;
}

bool print(double level)
{
    return std::printf("brightness %.4f\n", level) > 0 && std::fflush(stdout) == 0;
}

/// False when the input ended meanwhile.
bool waitFor(int milliseconds)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, milliseconds) == 0;
}

int follow(DDCA_Display_Ref display, double level)
{
    if (!print(level))
        return cannotWrite;
    int silences = 0;
    while (waitFor(silences < silencesOfSleep ? interval : sleepInterval)) {
        const auto current = brightness(display);
        silences = current ? 0 : std::min(silences + 1, silencesOfSleep);
        if (!current || *current == level)
            continue;
        level = *current;
        if (!print(level))
            return cannotWrite;
    }
    return ended;
}

} // namespace

int main()
{
    ::ddca_set_fout(nullptr);
    ::ddca_set_ferr(nullptr);
    DDCA_Display_Info_List *found = nullptr;
    if (::ddca_get_display_info_list2(false, &found) != 0)
        return noDisplay;
    const std::unique_ptr<DDCA_Display_Info_List, void (*)(DDCA_Display_Info_List *)> displays(
        found, &::ddca_free_display_info_list);
    for (int index = 0; index < displays->ct; ++index) {
        const DDCA_Display_Ref display = displays->info[index].dref;
        if (const auto level = brightness(display))
            return follow(display, *level);
    }
    return noDisplay;
}
