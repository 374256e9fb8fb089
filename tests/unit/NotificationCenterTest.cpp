#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;

namespace {

const QString tapped = u"tapped"_s;

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

} // namespace
