#pragma once

#include <QString>

namespace quillmere {

/// What the primary service's name of a condition ("MostlyClear") stands for.
struct WeatherCondition {
    int code = 0; ///< WMO code
    QString icon{};
    QString label{};
};

/// Names are compared without case; one that is not known is overcast, and named as it comes.
WeatherCondition weatherCondition(const QString &name, bool isDaylight);

} // namespace quillmere
