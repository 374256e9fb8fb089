#include "views/SilhouettePath.h"
#include "views/SoftRect.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

using namespace quillmere;

namespace {

TEST(SilhouettePathTest, HasEarsAboveAndRoundCornersBelow)
{
    const QPainterPath path = silhouettePath({300, 44}, 22);
    EXPECT_EQ(path.boundingRect(), QRectF(0, 0, 312, 44));
    for (const auto &[x, y] : {std::pair{3.0, 0.25}, {6.25, 20.0}, {12.0, 37.0}, {28.0, 43.75}})
        EXPECT_TRUE(path.contains({x, y}) && path.contains({312 - x, y})) << x;
    for (const auto &[x, y] : {std::pair{3.0, 2.0}, {5.75, 20.0}, {11.0, 39.0}, {20.0, 43.75}})
        EXPECT_FALSE(path.contains({x, y}) || path.contains({312 - x, y})) << x;
}

TEST(SilhouettePathTest, StaysWithinAnyFrame)
{
    const QSizeF frames[] = {{126, 32}, {4, 2}, {1000, 0.5}, {30, 300}, {0, 10}, {10, -1}};
    for (const QSizeF &frame : frames) {
        for (const double radius : {-5.0, 0.0, 10.0, 28.0, 500.0}) {
            const QRectF bounds = silhouettePath(frame, radius).controlPointRect();
            EXPECT_GE(bounds.left(), 0);
            EXPECT_GE(bounds.top(), 0);
            EXPECT_LE(bounds.right(), std::max(0.0, frame.width()) + 2 * earRadius + 1e-9);
            EXPECT_LE(bounds.bottom(), std::max(0.0, frame.height()) + 1e-9);
        }
    }
}

/// A blur done the slow way: the shape's coverage weighted by the bell around each point.
double blurredAt(const QPainterPath &shape, double sigma, QPointF point)
{
    const QRect bounds = shape.boundingRect().toAlignedRect();
    double sum = 0;
    for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
        for (int x = bounds.left(); x <= bounds.right(); ++x) {
            const QPointF sample(x + 0.5, y + 0.5);
            const QPointF away = (sample - point) / sigma;
            if (shape.contains(sample))
                sum += std::exp(-0.5 * QPointF::dotProduct(away, away));
        }
    }
    return sum / (2 * M_PI * sigma * sigma);
}

TEST(SoftRectTest, IsTheBlurOfARoundedShape)
{
    const double radius = 28;
    const QRectF rect(0, 6, 240, 120);
    QPainterPath shape;
    shape.setFillRule(Qt::WindingFill);
    shape.addRoundedRect(rect, radius, radius);
    shape.addRect(rect.adjusted(0, 0, 0, -radius));

    const QRect area(-54, 0, 348, 186);
    const QImage image =
        render({.rect = rect, .bottomRadius = radius, .sigma = 18}, Qt::black, area);
    ASSERT_EQ(image.size(), area.size());
    for (const QPoint point : {QPoint(-20, 60), QPoint(-5, 120), QPoint(3, 128), QPoint(120, 132),
                               QPoint(240, 126), QPoint(250, 150), QPoint(120, 30), QPoint(0, 0)}) {
        const double expected = 255 * blurredAt(shape, 18, QPointF(point) + QPointF(0.5, 0.5));
        EXPECT_NEAR(qAlpha(image.pixel(point - area.topLeft())), expected, 2.5)
            << point.x() << ' ' << point.y();
    }
}

TEST(SoftRectTest, PartsFitTogether)
{
    const SoftRect shape{.rect = QRectF(10.3, 6.7, 80, 30), .bottomRadius = 10, .sigma = 9};
    const QRect whole(0, 0, 100, 70);
    const QImage image = render(shape, QColor(0, 0, 0, 71), whole);
    const QRect part(37, 21, 40, 30);
    EXPECT_EQ(render(shape, QColor(0, 0, 0, 71), part), image.copy(part));
    EXPECT_TRUE(render(shape, Qt::black, QRect()).isNull());
    EXPECT_TRUE(render({}, Qt::black, whole).isNull());
}

} // namespace
