#include "views/SystemModel.h"

#include "app/SystemLoad.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <thread>

namespace quillmere {

namespace {

struct Gauge {
    QString name;
    QString amount;
    QColor color;
    double SystemStats::*usage; ///< percent
};

/// "14.6 of 24 GB"; of 100 and more without decimals, which nobody reads.
QString amountText(double used, double total)
{
    const QLocale locale;
    const auto text = [&locale, total](double value) {
        const bool isWhole = total >= 100 || std::abs(value - std::round(value)) < 0.05;
        return locale.toString(value, 'f', isWhole ? 0 : 1);
    };
    return total > 0 ? SystemModel::tr("%1 of %2 GB").arg(text(used), text(total))
                     : SystemModel::tr("unknown");
}

QVariantMap shown(const Gauge &gauge, const QList<SystemStats> &history)
{
    const auto fraction = [&gauge](const SystemStats &stats) {
        return std::clamp(stats.*gauge.usage / 100.0, 0.0, 1.0);
    };
    const double now = fraction(history.last());
    const QString figures =
        SystemModel::tr("%1%").arg(QLocale().toString(static_cast<int>(std::lround(now * 100))));
    QList<double> course;
    for (const SystemStats &stats : history)
        course.append(fraction(stats));
    return {{QStringLiteral("name"), gauge.name},
            {QStringLiteral("amount"), gauge.amount},
            {QStringLiteral("figures"), figures},
            {QStringLiteral("fraction"), now},
            {QStringLiteral("color"), gauge.color},
            {QStringLiteral("history"), QVariant::fromValue(course)},
            {QStringLiteral("accessibleText"),
             QStringLiteral("%1 %2, %3").arg(gauge.name, figures, gauge.amount)}};
}

} // namespace

SystemModel::SystemModel(const SystemLoad &load, QObject *parent)
    : QObject(parent)
    , load_(load)
{
    connect(&load_, &SystemLoad::historyChanged, this, [this] {
        if (watched_)
            Q_EMIT changed();
    });
}

void SystemModel::setWatched(bool watched)
{
    if (std::exchange(watched_, watched) != watched && watched)
        Q_EMIT changed();
}

bool SystemModel::hasSamples() const
{
    return !load_.history().isEmpty();
}

QVariantList SystemModel::gauges() const
{
    if (!hasSamples())
        return {};
    const SystemStats &now = load_.history().last();
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    const Gauge gauges[] = {
        {tr("Processor"),
         cores == 1 ? tr("1 core") : tr("%1 cores").arg(QLocale().toString(cores)),
         {94, 172, 255},
         &SystemStats::cpuUsage},
        {tr("Memory"),
         amountText(now.memoryUsedGB, now.memoryTotalGB),
         {66, 219, 120},
         &SystemStats::memoryUsage},
        {tr("Disk"),
         amountText(now.diskUsedGB, now.diskTotalGB),
         {255, 176, 66},
         &SystemStats::diskUsage},
    };
    QVariantList list;
    for (const Gauge &gauge : gauges)
        list.append(shown(gauge, load_.history()));
    return list;
}

} // namespace quillmere
