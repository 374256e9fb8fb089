#include "settingswindow/SettingsModel.h"

#include "platform/Appearance.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsStore.h"
#include "settingswindow/PageNotes.h"
#include "settingswindow/SettingsCatalog.h"
#include "settingswindow/SettingsPages.h"
#include "settingswindow/SettingsServices.h"
#include "views/WindowTheme.h"

#include <algorithm>

namespace quillmere {

namespace {

QVariantMap describe(const SettingsPageInfo &page)
{
    return {{QStringLiteral("page"), static_cast<int>(page.page)},
            {QStringLiteral("key"), QString()},
            {QStringLiteral("id"), QString(toText(page.page))},
            {QStringLiteral("title"), translated(page.title)},
            {QStringLiteral("subtitle"), QString()},
            {QStringLiteral("symbol"), QString(page.symbol)},
            {QStringLiteral("color"), QColor(page.color)}};
}

QVariantMap describe(const SettingEntry &entry, const SettingsPageInfo &page)
{
    QVariantMap result = describe(page);
    result[QStringLiteral("key")] = QString::fromLatin1(entry.key);
    result[QStringLiteral("title")] = translated(entry.title);
    result[QStringLiteral("subtitle")] = translated(page.title);
    return result;
}

bool matches(const QString &text, const QStringList &words)
{
    return std::ranges::all_of(
        words, [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

QString searchText(const SettingEntry &entry, const SettingGroup &group)
{
    QStringList texts{translated(info(group.page).title), translated(group.heading),
                      translated(entry.title), translated(entry.explanation)};
    for (const char *choice : entry.choices)
        if (choice)
            texts.append(translated(choice));
    return texts.join(u'\n');
}

} // namespace

SettingsModel::SettingsModel(SettingsServices &services, QObject *parent)
    : QObject(parent)
    , services_(services)
    , rows_(std::make_unique<QObject>())
    , preview_(services.settings, services.outputPicker, services.platform.appearance)
    , local_(services.platform.localDefaults.onExternalChange(
          [this](const QStringList &) { localChanged(); }))
    , appearance_(services.platform.appearance.onChanged([this] { Q_EMIT appearanceChanged(); }))
{
    connect(&services_.settings, &SettingsStore::didChange, this, &SettingsModel::settingChanged);
    rebuild();
}

SettingsModel::~SettingsModel() = default;

QVariantList SettingsModel::pages() const
{
    QVariantList result;
    for (const SettingsPageInfo &page : settingsPages())
        result.append(describe(page));
    return result;
}

void SettingsModel::setPage(int page)
{
    if (page == page_ || page < 0 || page >= static_cast<int>(settingsPages().size()))
        return;
    page_ = page;
    rebuild();
}

QString SettingsModel::pageId() const
{
    return QString(toText(static_cast<SettingsPage>(page_)));
}

QString SettingsModel::title() const
{
    return translated(info(static_cast<SettingsPage>(page_)).title);
}

QString SettingsModel::absence() const
{
    const char *text = info(static_cast<SettingsPage>(page_)).absence;
    return text ? translated(text) : QString();
}

void SettingsModel::rebuild()
{
    // The scene still holds the rows of the page before, until it has taken those of this one.
    auto rowsBefore = std::exchange(rows_, std::make_unique<QObject>());
    auto notesBefore = std::exchange(
        notes_, std::make_unique<PageNotes>(services_, static_cast<SettingsPage>(page_)));
    groups_.clear();
    for (const SettingGroup &group : settingGroups()) {
        if (group.page != static_cast<SettingsPage>(page_))
            continue;
        QVariantList rows;
        for (const SettingEntry &entry : group.entries)
            if (!entry.isInBox)
                rows.append(QVariant::fromValue(makeRow(entry)));
        if (rows.isEmpty())
            continue;
        groups_.append(QVariantMap{{QStringLiteral("heading"), translated(group.heading)},
                                   {QStringLiteral("rows"), rows}});
    }
    // What this program is comes before what can be set about it.
    if (static_cast<SettingsPage>(page_) == SettingsPage::About)
        groups_ = notes_->groups() + groups_;
    else
        groups_ += notes_->groups();
    preview_.setPage(static_cast<SettingsPage>(page_));
    Q_EMIT pageChanged();
    rowsBefore.release()->deleteLater();
    if (auto *notes = notesBefore.release())
        notes->deleteLater();
}

SettingRow *SettingsModel::makeRow(const SettingEntry &entry)
{
    const Setting *setting = services_.settings.registry().find(QLatin1StringView(entry.key));
    auto *row = new SettingRow(entry, setting ? setting->choices() : QStringList(), rows_.get());
    row->setWarning(missing(entry.need, services_.platform));
    if (setting) {
        row->setValue(setting->value());
        row->onChange = [this, key = row->key()](const QVariant &value) {
            services_.settings.registry().find(key)->setValue(value);
        };
    } else {
        UserDefaults &defaults = services_.platform.localDefaults;
        row->setValue(defaults.object(row->key()));
        row->onChange = [this, &defaults, row](const QVariant &value) {
            defaults.setObject(row->key(), value);
            row->setValue(value);
            services_.localKeyWritten();
        };
    }
    return row;
}

void SettingsModel::settingChanged(const QString &key)
{
    const Setting *setting = services_.settings.registry().find(key);
    for (auto *row : rows_->findChildren<SettingRow *>(Qt::FindDirectChildrenOnly))
        if (setting && row->key() == key)
            row->setValue(setting->value());
}

void SettingsModel::localChanged()
{
    for (auto *row : rows_->findChildren<SettingRow *>(Qt::FindDirectChildrenOnly))
        if (row->isLocal())
            row->setValue(services_.platform.localDefaults.object(row->key()));
}

bool SettingsModel::canReset() const
{
    return !rows_->findChildren<SettingRow *>(Qt::FindDirectChildrenOnly).isEmpty() &&
           absence().isEmpty();
}

void SettingsModel::resetPage()
{
    for (const SettingGroup &group : settingGroups()) {
        if (group.page != static_cast<SettingsPage>(page_))
            continue;
        for (const SettingEntry &entry : group.entries) {
            const auto key = QString::fromLatin1(entry.key);
            if (Setting *setting = services_.settings.registry().find(key))
                setting->reset();
            else
                services_.platform.localDefaults.removeObject(key);
        }
    }
    localChanged();
    services_.localKeyWritten();
}

void SettingsModel::setQuery(const QString &query)
{
    if (query == query_)
        return;
    query_ = query;
    Q_EMIT queryChanged();
}

QVariantList SettingsModel::results() const
{
    const QStringList words = query_.simplified().split(u' ', Qt::SkipEmptyParts);
    QVariantList result;
    if (words.isEmpty())
        return result;
    for (const SettingsPageInfo &page : settingsPages())
        if (matches(translated(page.title), words))
            result.append(describe(page));
    QVariantList others;
    for (const SettingGroup &group : settingGroups()) {
        for (const SettingEntry &entry : group.entries) {
            if (matches(translated(entry.title), words))
                result.append(describe(entry, info(group.page)));
            else if (matches(searchText(entry, group), words))
                others.append(describe(entry, info(group.page)));
        }
    }
    return result + others;
}

void SettingsModel::reveal(const QVariantMap &result)
{
    setPage(result.value(QStringLiteral("page")).toInt());
    Q_EMIT revealed(result.value(QStringLiteral("key")).toString());
}

bool SettingsModel::isDark() const
{
    return isWindowDark(services_.platform.appearance);
}

bool SettingsModel::highContrast() const
{
    return services_.platform.appearance.highContrast();
}

bool SettingsModel::reducesMotion() const
{
    return services_.platform.appearance.reducesMotion();
}

QColor SettingsModel::accent() const
{
    const auto chosen = services_.platform.appearance.accentColor();
    return chosen ? QColor::fromRgbF(static_cast<float>(chosen->red),
                                     static_cast<float>(chosen->green),
                                     static_cast<float>(chosen->blue))
                  : QColor(0x00, 0x71, 0xe3);
}

QObject *SettingsModel::googleAccount() const
{
    return services_.googleAccount;
}

} // namespace quillmere
