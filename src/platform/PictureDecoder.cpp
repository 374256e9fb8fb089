#include "platform/PictureDecoder.h"

#include <QBuffer>
#include <QImageReader>

namespace quillmere {

std::optional<QImage> decodePicture(const QByteArray &data, int side)
{
    if (data.isEmpty() || data.size() > largestPictureFile)
        return std::nullopt;
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > largestPicture)
        return std::nullopt;
    if (size.width() > side || size.height() > side)
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}

} // namespace quillmere
