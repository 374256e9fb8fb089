#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

using namespace quillmere;

namespace {

const QString tapped = QStringLiteral("tapped");

TEST(NotificationCenter, ObserversGetTheirNameOnlyInOrderUntilTheTokenGoes)
{
    NotificationCenter center;
    QStringList seen;
    auto first = center.observe(tapped, [&](const QVariantMap &info) {
        seen << QStringLiteral("1:") + info.value(QStringLiteral("direction")).toString();
    });
    const auto second =
        center.observe(tapped, [&](const QVariantMap &) { seen << QStringLiteral("2"); });
    const auto other = center.observe(QStringLiteral("other"),
                                      [&](const QVariantMap &) { seen << QStringLiteral("x"); });
    center.post(tapped, {{QStringLiteral("direction"), QStringLiteral("left")}});
    first.cancel();
    center.post(tapped);
    EXPECT_EQ(seen,
              (QStringList{QStringLiteral("1:left"), QStringLiteral("2"), QStringLiteral("2")}));
}

TEST(NotificationCenter, ObserversMayComeAndGoDuringAPost)
{
    NotificationCenter center;
    int calls = 0;
    Task later;
    std::vector<Task> added;
    const auto first = center.observe(tapped, [&](const QVariantMap &) {
        later.cancel();
        for (int i = 0; i < 50; ++i) // enough new names to move the table
            added.push_back(center.observe(QString::number(i), [](const QVariantMap &) {}));
        added.push_back(center.observe(tapped, [&](const QVariantMap &) { calls += 100; }));
    });
    later = center.observe(tapped, [&](const QVariantMap &) { ++calls; });
    center.post(tapped);
    EXPECT_EQ(calls, 0) << "neither the removed nor the newly added one belongs to this post";
}

TEST(NotificationCenter, TokensMayOutliveTheCentre)
{
    Task token;
    {
        NotificationCenter center;
        token = center.observe(tapped, [](const QVariantMap &) {});
    }
    token.cancel();
}

} // namespace
