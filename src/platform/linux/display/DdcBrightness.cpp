#include "platform/linux/display/DdcBrightness.h"

#include <QProcess>

namespace quillmere {

namespace {

constexpr qint64 longestLine = 1024;
constexpr QByteArrayView levelPrefix("brightness ");

/// Absent if the line tells none.
std::optional<double> toLevel(const QByteArray &line)
{
    bool isNumber = false;
    const double level = line.mid(levelPrefix.size()).trimmed().toDouble(&isNumber);
    if (!isNumber || !(level >= 0 && level <= 1))
        return std::nullopt;
    return level;
}

} // namespace

DdcBrightness::DdcBrightness(const QString &helper, std::function<void(bool)> onAvailability)
    : onAvailability_(std::move(onAvailability))
    , process_(new QProcess) // without a parent, as destroying one that runs would wait
{
    process_->setProgram(helper);
    process_->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process_, &QProcess::readyReadStandardOutput, process_, [this] { read(); });
    const auto end = [this] { setLevel(std::nullopt); };
    QObject::connect(process_, &QProcess::finished, process_, end);
    process_->start();
}

DdcBrightness::~DdcBrightness()
{
    process_->disconnect();
    QObject::connect(process_, &QProcess::finished, process_, &QObject::deleteLater);
    if (process_->state() == QProcess::NotRunning)
        process_->deleteLater();
    else
        process_->closeWriteChannel(); // tells the helper to end
}

void DdcBrightness::read()
{
    while (process_->canReadLine()) {
        const QByteArray line = process_->readLine(longestLine);
        if (!line.startsWith(levelPrefix) && line.endsWith('\n'))
            continue; // the library's own talk
        const auto level = toLevel(line);
        if (!level) {
            return giveUp("printed no brightness: \"" + line.trimmed().toPercentEncoding(" ") +
                          '"');
        }
        setLevel(level);
    }
    if (process_->bytesAvailable() > longestLine)
        giveUp("printed an endless line");
}

void DdcBrightness::giveUp(const QByteArray &reason)
{
    qWarning("[Quillmere] %s %s", qUtf8Printable(process_->program()), reason.constData());
    QObject::disconnect(process_, &QProcess::readyReadStandardOutput, nullptr, nullptr);
    process_->kill();
}

void DdcBrightness::setLevel(std::optional<double> level)
{
    const bool appearedOrEnded = level.has_value() != level_.has_value();
    level_ = level;
    if (appearedOrEnded)
        onAvailability_(level.has_value());
}

} // namespace quillmere
