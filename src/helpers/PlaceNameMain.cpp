// Prints the name of the city nearest to a coordinate and, a line below, of the place it was found
// by; nothing if there is none within 50 km. Arguments: latitude and longitude in degrees.

#include <libgweather/gweather.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <memory>
#include <optional>
#include <string_view>

namespace {

constexpr double farthest = 50; // kilometres

enum ExitStatus { answered = 0, wrongArguments = 2, noDatabase = 3 };

using LocationPointer = std::unique_ptr<GWeatherLocation, decltype(&::g_object_unref)>;
using Text = std::unique_ptr<char, decltype(&::g_free)>;

LocationPointer own(GWeatherLocation *location)
{
    return {location, &::g_object_unref};
}

std::optional<double> degrees(std::string_view text, double most)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole && std::abs(value) <= most ? std::optional(value) : std::nullopt;
}

void print(GWeatherLocation *place)
{
    const Text city(::gweather_location_get_city_name(place), &::g_free);
    const char *name = ::gweather_location_get_name(place);
    std::printf("%s\n%s\n", city ? city.get() : "", name != nullptr ? name : "");
}

} // namespace

int main(int count, char **arguments)
{
    const auto latitude = count == 3 ? degrees(arguments[1], 90) : std::nullopt;
    const auto longitude = count == 3 ? degrees(arguments[2], 180) : std::nullopt;
    if (!latitude || !longitude) {
        std::fputs("usage: place-name LATITUDE LONGITUDE\n", stderr);
        return wrongArguments;
    }
    const LocationPointer world = own(::gweather_location_get_world());
    if (!world) {
        std::fputs("there is no database of places\n", stderr);
        return noDatabase;
    }
    const LocationPointer here =
        own(::gweather_location_new_detached("here", nullptr, *latitude, *longitude));
    const LocationPointer place =
        own(::gweather_location_find_nearest_city(world.get(), *latitude, *longitude));
    if (place && ::gweather_location_get_distance(here.get(), place.get()) <= farthest)
        print(place.get());
    return answered;
}
