#include "platform/linux/location/HelperGeocoder.h"

#include <QDebug>

namespace quillmere {

namespace {

constexpr qsizetype longestName = 100;
constexpr int digits = 6; // of a degree: a tenth of a metre

QString line(const QByteArray &output, qsizetype number)
{
    return QString::fromUtf8(output.split('\n').value(number)).simplified().left(longestName);
}

} // namespace

Task HelperGeocoder::reverseGeocode(double latitude, double longitude,
                                    std::function<void(const std::optional<Placemark> &)> done)
{
    const QStringList arguments{QString::number(latitude, 'f', digits),
                                QString::number(longitude, 'f', digits)};
    return scripts_.run(scripts::placeName, arguments,
                        [done = std::move(done)](const ScriptAnswer &answer) {
                            if (!answer.hasSucceeded) {
                                qWarning("[Location] No place name: %s",
                                         answer.errors.isEmpty() ? "the helper program failed"
                                                                 : answer.errors.constData());
                                return done(std::nullopt);
                            }
                            if (answer.output.isEmpty())
                                return done(std::nullopt);
                            done(Placemark{line(answer.output, 0), line(answer.output, 1)});
                        });
}

} // namespace quillmere
