#include "settingswindow/SettingsCatalog.h"
#include "settingswindow/SettingRow.h"
#include "settingswindow/SettingsPages.h"
#include "support/SettingsFixture.h"
#include "views/Glyphs.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace quillmere;

namespace {

bool fits(const SettingEntry &entry, const Setting &setting)
{
    const auto titles = std::ranges::count_if(
        entry.choices, [](const char *title) { return title && *title != '\0'; });
    switch (setting.type()) {
    case SettingType::Boolean:
        return entry.control == SettingControl::Switch;
    case SettingType::Choice:
        return entry.control == SettingControl::Segments && titles == setting.choices().size();
    case SettingType::Text:
        return entry.control == SettingControl::Text;
    case SettingType::Double:
    case SettingType::Integer:
        return entry.control == SettingControl::Slider || entry.control == SettingControl::Number;
    }
    return false;
}

TEST(SettingsCatalogTest, EverySettingIsOnOnePageOrHasAReasonNotToBe)
{
    const SettingsFixture fixture;
    std::map<QString, int> seen;
    for (const SettingGroup &group : settingGroups()) {
        for (const SettingEntry &entry : group.entries) {
            EXPECT_EQ(++seen[QString::fromLatin1(entry.key)], 1) << entry.key;
            const Setting *setting = fixture.settings.registry().find(QLatin1StringView(entry.key));
            EXPECT_EQ(setting == nullptr, entry.isLocal) << entry.key;
            EXPECT_TRUE(!setting || fits(entry, *setting)) << entry.key;
            EXPECT_STRNE(entry.title, "") << entry.key;
            EXPECT_STRNE(entry.explanation, "") << entry.key;
        }
    }
    for (const HiddenSetting &hidden : hiddenSettings()) {
        EXPECT_EQ(++seen[hidden.key], 1) << hidden.key.data();
        EXPECT_FALSE(hidden.reason.isEmpty()) << hidden.key.data();
        EXPECT_TRUE(fixture.settings.registry().find(hidden.key)) << hidden.key.data();
    }
    for (const Setting *setting : fixture.settings.registry().settings())
        EXPECT_TRUE(seen.contains(setting->key())) << qPrintable(setting->key());
}

TEST(SettingsCatalogTest, DefaultsCanBeChosenAgain)
{
    const SettingsFixture fixture;
    for (const SettingGroup &group : settingGroups()) {
        for (const SettingEntry &entry : group.entries) {
            if (entry.control != SettingControl::Slider && entry.control != SettingControl::Number)
                continue;
            const Setting *setting = fixture.settings.registry().find(QLatin1StringView(entry.key));
            ASSERT_TRUE(setting) << entry.key;
            SettingRow row(entry, {}, nullptr);
            QVariant stored;
            row.onChange = [&stored](const QVariant &value) { stored = value; };
            row.setValue(-1); // what the control shows is not the default
            row.change(setting->defaultValue());
            EXPECT_EQ(stored.toDouble(), setting->defaultValue().toDouble()) << entry.key;
            EXPECT_TRUE(row.display(entry.range.to)
                            .contains(QLocale().toString(entry.range.to * entry.range.factor, 'f',
                                                         entry.range.decimals)))
                << entry.key;
        }
    }
}

TEST(SettingsCatalogTest, WhatASliderStoresIsAWholeStepWithinItsEnds)
{
    SettingRow row(slider("glassTransparency", "", "", {.from = 0, .to = 1, .step = 0.05}), {},
                   nullptr);
    QVariantList stored;
    row.onChange = [&](const QVariant &value) {
        stored.append(value);
        row.setValue(value);
    };
    row.setValue(0.5);
    for (const double moved : {0.51, 0.149, 0.16, 7.0, -3.0})
        row.change(moved);
    EXPECT_EQ(stored, QVariantList({0.15, 1.0, 0.0})); // the rest would change nothing
}

TEST(SettingsCatalogTest, APageHasSettingsOrSaysWhyNot)
{
    Glyphs &glyphs = Glyphs::shared();
    ASSERT_EQ(settingsPages().size(), allTexts<SettingsPage>().size());
    for (std::size_t i = 0; i < settingsPages().size(); ++i) {
        const SettingsPageInfo &page = settingsPages()[i];
        EXPECT_EQ(static_cast<std::size_t>(page.page), i) << page.title;
        EXPECT_TRUE(glyphs.contains(page.symbol)) << page.title;
        const bool hasSettings = std::ranges::find(settingGroups(), page.page,
                                                   &SettingGroup::page) != settingGroups().end();
        EXPECT_NE(hasSettings, page.absence != nullptr) << page.title;
    }
}

} // namespace
