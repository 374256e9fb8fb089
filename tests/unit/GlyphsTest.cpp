#include "views/Glyphs.h"

#include "platform/Symbols.h"
#include "support/LogCapture.h"
#include "weather/WeatherSymbols.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

using namespace quillmere;

namespace {

struct Coverage {
    int solid = 0;
    int partial = 0;
};

/// Pixels of full opacity, and those that are even: part of a dimmed area, not of an edge.
Coverage coverage(const QImage &image)
{
    Coverage result;
    for (int y = 1; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            result.solid += alpha == 255;
            result.partial += alpha > 40 && alpha < 215 && alpha == qAlpha(image.pixel(x - 1, y));
        }
    }
    return result;
}

TEST(GlyphsTest, EverySymbolInUseDrawsAsItself)
{
    Glyphs glyphs;
    const QImage placeholder = glyphs.image(QStringLiteral("no.such.symbol"), 40, Qt::white);
    std::set<QByteArray> seen;
    for (const QLatin1StringView name : symbols::all) {
        const QString symbol(name);
        EXPECT_TRUE(glyphs.contains(symbol)) << name.data();
        EXPECT_TRUE(Glyphs::iconName(symbol).endsWith(QStringLiteral("-symbolic")));
        const QImage image = glyphs.image(symbol, 40, Qt::white);
        EXPECT_EQ(image.size(), QSize(40, 40));
        EXPECT_GT(coverage(image).solid, 100) << name.data();
        EXPECT_NE(image, placeholder) << name.data();
        const auto bits = QByteArray::fromRawData(reinterpret_cast<const char *>(image.constBits()),
                                                  image.sizeInBytes());
        EXPECT_TRUE(seen.insert(QByteArray(bits.constData(), bits.size())).second) << name.data();
    }
}

TEST(GlyphsTest, EveryWeatherHasItsGlyph)
{
    Glyphs glyphs;
    const QImage placeholder = glyphs.image(QStringLiteral("no.such.symbol"), 40, Qt::white);
    for (const QLatin1StringView name : symbols::weather::all) {
        EXPECT_TRUE(glyphs.contains(QString(name))) << name.data();
        EXPECT_NE(glyphs.image(QString(name), 40, Qt::white), placeholder) << name.data();
    }
}

TEST(GlyphsTest, TintReplacesTheColourAndKeepsDimmedParts)
{
    const QImage image = Glyphs().image(QString(symbols::speakerWave2), 64, QColor(10, 200, 30));
    EXPECT_GT(coverage(image).partial, 20); // the outer wave
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                ASSERT_EQ(pixel, QColor(10, 200, 30));
            }
        }
    }
}

TEST(GlyphsTest, MissingGlyphIsVisibleAndLoggedOnce)
{
    QTemporaryDir empty;
    QTemporaryDir broken;
    QDir(broken.path()).mkpath(QStringLiteral("status"));
    QFile file(broken.filePath(QStringLiteral("status/audio-volume-low-symbolic.svg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<svg><path d=");
    file.close();

    const struct {
        QString dir;
        QString symbol;
    } cases[] = {
        {empty.path(), QString(symbols::sunMax)},
        {broken.path(), QString(symbols::speakerWave1)},
        {QStringLiteral(":/icons/quillmere/scalable"), QStringLiteral("../../../etc/passwd")},
        {empty.path(), QString(5000, u'x')},
    };
    for (const auto &[dir, symbol] : cases) {
        LogCapture log;
        Glyphs glyphs(QStringList{dir});
        EXPECT_FALSE(glyphs.contains(symbol));
        for (const int size : {20, 20, 40, -1, 1 << 20})
            EXPECT_FALSE(glyphs.image(symbol, size, Qt::white).isNull());
        EXPECT_GT(coverage(glyphs.image(symbol, 40, Qt::white)).solid, 10);
        const auto lines = log.take().filter(QLatin1StringView("[Glyphs]"));
        EXPECT_EQ(lines.size(), 1) << qPrintable(symbol.left(40));
    }
}

} // namespace
