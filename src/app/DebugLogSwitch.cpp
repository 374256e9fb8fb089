#include "app/DebugLogSwitch.h"

#include "island/IslandDebugLogger.h"
#include "platform/UserDefaults.h"

namespace quillmere {

namespace {

const QString enabledKey = QStringLiteral("debugLogEnabled");
const QString categoriesKey = QStringLiteral("debugLogCategories");

} // namespace

DebugLogSwitch::DebugLogSwitch(UserDefaults &localDefaults, IslandDebugLogger &logger)
    : localDefaults_(localDefaults)
    , logger_(logger)
    , observer_(localDefaults.onExternalChange([this](const QStringList &) { apply(); }))
{
    apply();
}

void DebugLogSwitch::apply()
{
    const QVariant categories = localDefaults_.object(categoriesKey);
    logger_.setEnabledCategories(
        categories.typeId() == QMetaType::QVariantList
            ? IslandDebugLogger::categoriesFromTexts(categories.toStringList())
            : IslandDebugLogger::allCategories());
    const QVariant enabled = localDefaults_.object(enabledKey);
    const bool wasEnabled = logger_.enabled();
    logger_.setEnabled(enabled.typeId() == QMetaType::Bool && enabled.toBool());
    // Tells whoever just switched it on that it works, before anything happens.
    if (!wasEnabled)
        logger_.log(IslandDebugLogger::Category::General, QStringLiteral("LOG_ENABLED"));
}

} // namespace quillmere
