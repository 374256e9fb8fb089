#include "views/DashboardModel.h"

#include "app/AudioOutputPicker.h"
#include "app/FileTray.h"
#include "app/WeatherReports.h"
#include "island/ContentView.h"
#include "island/HUDManager.h"
#include "settings/SettingsStore.h"
#include "views/DesktopAccent.h"
#include "views/PlainText.h"

#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

namespace quillmere {

namespace {

constexpr qsizetype longestName = 120;

QString title(IslandPage page)
{
    switch (page) {
    case IslandPage::Main:
        return DashboardModel::tr("Overview");
    case IslandPage::Calendar:
        return DashboardModel::tr("Calendar");
    case IslandPage::Weather:
        return DashboardModel::tr("Weather");
    case IslandPage::System:
        return DashboardModel::tr("System");
    case IslandPage::FileTray:
        return DashboardModel::tr("File tray");
    case IslandPage::Timer:
        return DashboardModel::tr("Timers");
    case IslandPage::Camera:
        return DashboardModel::tr("Camera");
    case IslandPage::Network:
        return DashboardModel::tr("Network");
    }
    return {};
}

} // namespace

DashboardModel::DashboardModel(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
                               ContentView &contentView, const DashboardSources &sources,
                               Appearance &appearance, QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , settings_(settings)
    , hudManager_(hudManager)
    , contentView_(contentView)
    , outputPicker_(sources.outputPicker)
    , fileTray_(sources.fileTray)
    , appearance_(appearance)
    , slots_{islandPageName(contentView.pages().islandPage()), QString()}
    , media_(runLoop, settings, hudManager, appearance)
    , assistant_(runLoop, sources.claudeCode)
    , weather_(runLoop, settings, sources.weather.service(), sources.weather.place(),
               sources.weather.search())
    , system_(sources.systemLoad)
    , timer_(settings, sources.timers)
{
    const IslandPages &pages = contentView_.pages();
    connect(&pages, &IslandPages::offeredChanged, this, &DashboardModel::pagesChanged);
    connect(&pages, &IslandPages::offeredChanged, this, &DashboardModel::pageChanged);
    connect(&pages, &IslandPages::pageChanged, this, &DashboardModel::pageTurned);
    connect(&contentView_, &ContentView::presentationChanged, this,
            &DashboardModel::presentationChanged);
    connect(&contentView_, &ContentView::typingChanged, this, &DashboardModel::typingChanged);
    connect(&contentView_, &ContentView::draggingChanged, this, &DashboardModel::draggingChanged);
    connect(&hudManager_, &HUDManager::currentHUDChanged, this, &DashboardModel::updateLevel);
    connect(&hudManager_, &HUDManager::isOvershootChanged, this, &DashboardModel::overshootChanged);
    connect(&hudManager_, &HUDManager::hudQueueChanged, this, &DashboardModel::updateActivity);
    connect(&hudManager_, &HUDManager::currentQueueIndexChanged, this,
            &DashboardModel::updateActivity);
    connect(&outputPicker_, &AudioOutputPicker::currentChanged, this,
            &DashboardModel::outputChanged);
    connect(&outputPicker_, &AudioOutputPicker::openChanged, this,
            &DashboardModel::pickerOpenChanged);
    connect(&outputPicker_, &AudioOutputPicker::choicesChanged, this,
            &DashboardModel::outputsChanged);
    connect(&fileTray_, &FileTray::filesChanged, this, &DashboardModel::trayFilesChanged);
}

bool DashboardModel::isOpen() const
{
    return contentView_.presentation() == Presentation::Expanded;
}

void DashboardModel::presentationChanged()
{
    if (!isOpen()) {
        nextMinute_.cancel();
        outputPicker_.close();
    } else {
        updateClock();
        updateActivity();
    }
    assistant_.setWatched(isOpen());
    watchPages();
    updateLevel();
}

void DashboardModel::watchPages()
{
    weather_.setWatched(contentView_.shows(IslandPage::Weather));
    system_.setWatched(contentView_.shows(IslandPage::System));
    timer_.setWatched(contentView_.shows(IslandPage::Timer));
}

bool DashboardModel::isTyping() const
{
    return contentView_.isTyping();
}

void DashboardModel::setTyping(bool typing)
{
    contentView_.setTyping(typing);
}

QStringList DashboardModel::pages() const
{
    QStringList names;
    for (const IslandPage page : contentView_.pages().offered())
        names.append(title(page));
    return names;
}

int DashboardModel::pageIndex() const
{
    const IslandPages &pages = contentView_.pages();
    return static_cast<int>(pages.offered().indexOf(pages.islandPage()));
}

int DashboardModel::slideDirection() const
{
    return contentView_.pages().pageSlideDirection();
}

void DashboardModel::pageTurned()
{
    const IslandPages &pages = contentView_.pages();
    outputPicker_.close();
    slide_ += pages.pageSlideDirection();
    slots_[static_cast<std::size_t>(slide_ & 1)] = islandPageName(pages.islandPage());
    watchPages();
    Q_EMIT pageChanged();
}

void DashboardModel::updateClock()
{
    using namespace std::chrono;
    const auto now = runLoop_.wallClock();
    const auto minuteEnd = floor<minutes>(now) + minutes(1);
    nextMinute_ = runLoop_.after(minuteEnd - now, [this] { updateClock(); });
    Q_EMIT clockChanged();
}

QString DashboardModel::time() const
{
    // Some locales have seconds even in their short format.
    static const QRegularExpression seconds(QStringLiteral("[:.]ss?"));
    const QString format = QLocale().timeFormat(QLocale::ShortFormat).remove(seconds);
    return QLocale().toString(runLoop_.date().time(), format);
}

QString DashboardModel::date() const
{
    //: A date without a year, as QLocale writes it: Saturday, 21 November
    return QLocale().toString(runLoop_.date().date(), tr("dddd, d MMMM"));
}

void DashboardModel::updateLevel()
{
    const auto &hud = hudManager_.currentHUD();
    const bool shows = hud && isLevel(hud->type) && isOpen();
    if (shows)
        level_.setFace(
            hudFace(*hud, hudLook(settings_, outputPicker_), desktopAccent(appearance_)));
    if (std::exchange(showsLevel_, shows) != shows)
        Q_EMIT levelChanged();
}

bool DashboardModel::overshoot() const
{
    return hudManager_.isOvershoot();
}

int DashboardModel::activityCount() const
{
    return static_cast<int>(hudManager_.hudQueue().size());
}

int DashboardModel::activityIndex() const
{
    return hudManager_.currentQueueIndex();
}

void DashboardModel::updateActivity()
{
    if (!isOpen())
        return;
    const auto &queue = hudManager_.hudQueue();
    if (!queue.isEmpty())
        activity_.setFace(hudFace(queue.at(hudManager_.currentQueueIndex()),
                                  hudLook(settings_, outputPicker_), desktopAccent(appearance_)));
    Q_EMIT activityChanged();
}

QString DashboardModel::outputName() const
{
    return plainText(outputPicker_.current().name, longestName);
}

QString DashboardModel::outputSymbol() const
{
    return outputPicker_.current().symbol;
}

bool DashboardModel::isPickerOpen() const
{
    return outputPicker_.isOpen();
}

QVariantList DashboardModel::outputs() const
{
    QVariantList list;
    for (const auto &choice : outputPicker_.choices())
        list.append(QVariantMap{{QStringLiteral("id"), choice.id},
                                {QStringLiteral("name"), plainText(choice.name, longestName)},
                                {QStringLiteral("symbol"), choice.symbol},
                                {QStringLiteral("isCurrent"), choice.isCurrent}});
    return list;
}

bool DashboardModel::isDragging() const
{
    return contentView_.isDraggingFile();
}

bool DashboardModel::isTrayEmpty() const
{
    return fileTray_.files().isEmpty();
}

QVariantList DashboardModel::trayFiles() const
{
    QVariantList list;
    for (const QUrl &url : fileTray_.files()) {
        const QFileInfo file(url.toLocalFile());
        list.append(QVariantMap{{QStringLiteral("url"), url},
                                {QStringLiteral("name"), plainText(file.fileName(), longestName)},
                                {QStringLiteral("folder"), plainText(file.path(), longestName)}});
    }
    return list;
}

void DashboardModel::close()
{
    if (isOpen())
        contentView_.toggle();
}

void DashboardModel::keyboardLeft()
{
    contentView_.keyboardLeft();
}

void DashboardModel::keyPressed()
{
    contentView_.keyPressed();
}

void DashboardModel::showPage(int index)
{
    const auto &offered = contentView_.pages().offered();
    if (index >= 0 && index < offered.size())
        contentView_.pages().show(offered.at(index));
}

void DashboardModel::stepPage(int step)
{
    contentView_.pages().step(step);
}

void DashboardModel::stepActivity(int step)
{
    if (step > 0)
        hudManager_.showNextActivity();
    else
        hudManager_.showPreviousActivity();
}

void DashboardModel::dismissActivity()
{
    hudManager_.removeActivity(hudManager_.currentQueueIndex());
}

void DashboardModel::openPicker()
{
    if (isOpen())
        outputPicker_.open();
}

void DashboardModel::closePicker()
{
    outputPicker_.close();
}

void DashboardModel::chooseOutput(uint id)
{
    outputPicker_.choose(id);
}

void DashboardModel::openFile(const QUrl &file)
{
    Q_EMIT linkActivated(file);
}

void DashboardModel::removeFile(const QUrl &file)
{
    fileTray_.remove(file);
}

} // namespace quillmere
