#include "platform/linux/appearance/KdeGlobals.h"

#include <QList>

namespace quillmere {

namespace {

bool isAnimationOn(const QByteArray &durationFactor)
{
    bool isNumber = false;
    const double factor = durationFactor.toDouble(&isNumber);
    return !isNumber || factor > 0;
}

std::optional<AccentColor> toColor(const QByteArray &text)
{
    const auto parts = text.split(',');
    if (parts.size() != 3)
        return std::nullopt;
    double values[3];
    for (qsizetype part = 0; part < 3; ++part) {
        bool isNumber = false;
        values[part] = parts[part].trimmed().toUShort(&isNumber) / 255.0;
        if (!isNumber || values[part] > 1)
            return std::nullopt;
    }
    return AccentColor{values[0], values[1], values[2]};
}

} // namespace

KdeGlobals parseKdeGlobals(const QByteArray &text)
{
    KdeGlobals result;
    QByteArray group;
    for (const auto &each : text.split('\n')) {
        const QByteArray line = each.trimmed();
        if (line.startsWith('['))
            group = line;
        const auto equals = line.indexOf('=');
        if (equals < 0 || group == line)
            continue;
        const QByteArray key = line.left(equals).trimmed();
        const QByteArray value = line.mid(equals + 1).trimmed();
        if (group == "[KDE]" && key == "AnimationDurationFactor")
            result.isAnimated = isAnimationOn(value);
        else if (group == "[General]" && key == "AccentColor")
            result.accent = toColor(value);
    }
    return result;
}

} // namespace quillmere
