#include "island/ContentView.h"

#include "app/AppEvents.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "island/IdleWings.h"
#include "platform/Haptics.h"
#include "platform/NotificationCenter.h"
#include "settings/SettingsStore.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr QSizeF dashboardSize{600, 220};

/// Brushing past the edge does not start the countdown.
constexpr Duration hoverOutGrace = std::chrono::milliseconds(350);

/// A collapse that is held up looks again after this at the soonest, whatever the setting says.
constexpr Duration shortestRearm = hoverOutGrace;

QLatin1StringView truth(bool value)
{
    return value ? QLatin1StringView("true") : QLatin1StringView("false");
}

/// Shortest text that reads back as the same number, with at least one decimal.
QString decimal(double value)
{
    const QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    const bool whole =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit() || c == u'-'; });
    return whole ? text + u".0" : text;
}

} // namespace

QString presentationName(Presentation presentation)
{
    static const std::array names{QStringLiteral("collapsed"), QStringLiteral("hud"),
                                  QStringLiteral("expanded")};
    return names.at(static_cast<std::size_t>(presentation));
}

QSizeF hudSize(HUDContent::HUDType type)
{
    using enum HUDContent::HUDType;
    switch (type) {
    case Volume:
    case Brightness:
    case Battery:
        return {300, 44};
    case Bluetooth:
        return {300, 60};
    default:
        return {380, 76};
    }
}

ContentView::ContentView(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
                         FloatingPanel &panel, IdleWings &wings,
                         NotificationCenter &notificationCenter, Haptics &haptics,
                         IslandDebugLogger &logger)
    : runLoop_(runLoop)
    , settings_(settings)
    , hudManager_(hudManager)
    , panel_(panel)
    , wings_(wings)
    , haptics_(haptics)
    , logger_(logger)
    , pages_(runLoop)
{
    observe(notificationCenter);
    offerPages();
    updateSize();
}

void ContentView::observe(NotificationCenter &notificationCenter)
{
    const auto on = [&](QLatin1StringView name, void (ContentView::*handler)()) {
        observers_.push_back(notificationCenter.observe(
            name, [this, handler](const QVariantMap &) { (this->*handler)(); }));
    };
    observers_.push_back(
        notificationCenter.observe(events::islandTapped, [this](const QVariantMap &userInfo) {
            if (userInfo.value(events::byKeyboard).toBool())
                toggleByKeyboard();
            else
                toggle();
        }));
    on(events::airPlayPickerShown, &ContentView::pickerShown);
    on(events::airPlayPickerDismissed, &ContentView::pickerDismissed);
    on(events::dragEntered, &ContentView::dragEntered);
    on(events::dragExited, &ContentView::dragExited);

    connect(&hudManager_, &HUDManager::hudPresented, this, &ContentView::hudPresented);
    connect(&hudManager_, &HUDManager::currentHUDChanged, this, [this] {
        if (!hudManager_.currentHUD())
            lastHUD_.reset();
    });
    connect(&panel_, &FloatingPanel::collapsedSizeChanged, this, &ContentView::updateSize);
    const auto wingsHaveChanged = [this] {
        updateSize();
        Q_EMIT wingsChanged();
    };
    connect(&wings_, &IdleWings::contentChanged, this, wingsHaveChanged);
    connect(&pages_, &IslandPages::pageChanged, this, &ContentView::offerPages);
    connect(&hudManager_, &HUDManager::hudQueueChanged, this, wingsHaveChanged);
    connect(&hudManager_, &HUDManager::currentQueueIndexChanged, this, wingsHaveChanged);
    connect(&settings_, &SettingsStore::didChange, this, [this](const QString &key) {
        const QString offering[] = {settings_.showFileTray.key(), settings_.showSystemMonitor.key(),
                                    settings_.enablePomodoro.key(),
                                    settings_.enableCountdownTimer.key()};
        if (std::ranges::find(offering, key) != std::end(offering))
            offerPages();
    });
}

void ContentView::offerPages()
{
    QList<IslandPage> pages{IslandPage::Main};
    pages.append(IslandPage::Weather);
    if (settings_.showSystemMonitor.get())
        pages.append(IslandPage::System);
    if (settings_.showFileTray.get())
        pages.append(IslandPage::FileTray);
    // One that was started from outside has to be stopped somewhere, and its page does not go while
    // it is looked at.
    if (settings_.enablePomodoro.get() || settings_.enableCountdownTimer.get() ||
        timerIsUnderWay_ || shows(IslandPage::Timer))
        pages.append(IslandPage::Timer);
    pages_.offer(pages);
}

Presentation ContentView::presentation() const
{
    if (!isExpanded_)
        return Presentation::Collapsed;
    return userExpanded_ ? Presentation::Expanded : Presentation::HUD;
}

bool ContentView::shows(IslandPage page) const
{
    return presentation() == Presentation::Expanded && pages_.islandPage() == page;
}

std::optional<HUDContent> ContentView::idleActivity() const
{
    const auto &queue = hudManager_.hudQueue();
    if (!wings_.content().activity || queue.isEmpty())
        return std::nullopt;
    return queue.at(hudManager_.currentQueueIndex());
}

void ContentView::setTimerUnderWay(bool isUnderWay)
{
    timerIsUnderWay_ = isUnderWay;
    offerPages();
}

void ContentView::pointerEntered()
{
    pointerInside_ = true;
    if (!isExpanded_) {
        if (settings_.expandNotchOnHover.get())
            expandAsUser();
        return;
    }
    logCollapse(QStringLiteral("HOVER_IN — cancelling collapse"));
    cancelCollapse();
}

void ContentView::pointerExited()
{
    pointerInside_ = false;
    if (!isExpanded_)
        return;
    logger_.log(IslandDebugLogger::Category::Collapse, [this] {
        return QString(u"HOVER_OUT — will schedule collapse in 0.35s (airPlayOpen=" +
                       truth(airPlayPickerOpen_) + u")");
    });
    // One that was only held up by the pointer must not come before the countdown that begins now.
    if (collapseIsRearmed_)
        cancelCollapse();
    hoverOutChecks_.push_back(runLoop_.after(hoverOutGrace, [this] {
        const Task finished = std::move(hoverOutChecks_.front());
        hoverOutChecks_.pop_front();
        if (airPlayPickerOpen_) {
            logCollapse(QStringLiteral("HOVER_OUT_DELAYED — popover is open, skipping collapse"));
            return;
        }
        logCollapse(u"HOVER_OUT_DELAYED — scheduling collapse delay=" +
                    decimal(settings_.autoCollapseDelay.get()));
        scheduleCollapse();
    }));
}

void ContentView::setTyping(bool typing)
{
    typing = typing && presentation() == Presentation::Expanded;
    if (std::exchange(isTyping_, typing) == typing)
        return;
    updateKey();
    if (!typing && isExpanded_)
        scheduleCollapse();
    Q_EMIT typingChanged();
}

void ContentView::setHasKeyboard(bool has)
{
    hasKeyboard_ = has && presentation() == Presentation::Expanded;
    updateKey();
}

void ContentView::updateKey()
{
    const bool isKey = isTyping_ || hasKeyboard_;
    if (std::exchange(isKey_, isKey) != isKey)
        panel_.setKey(isKey);
}

void ContentView::keyPressed()
{
    if (hasKeyboard_ && collapseWorkItem_)
        scheduleCollapse();
}

void ContentView::keyboardLeft()
{
    setTyping(false);
    setHasKeyboard(false);
}

void ContentView::toggleByKeyboard()
{
    toggle();
    setHasKeyboard(true);
}

void ContentView::toggle()
{
    cancelCollapse();
    if (isExpanded_) {
        playHaptic();
        logCollapse(QStringLiteral("TOGGLE isExpanded=false userExpanded=false"));
        collapse();
    } else {
        expandAsUser();
    }
}

void ContentView::expandAsUser()
{
    playHaptic();
    logCollapse(QStringLiteral("TOGGLE isExpanded=true userExpanded=true"));
    setState(true, true);
    scheduleCollapse();
}

void ContentView::hudPresented()
{
    const auto &hud = hudManager_.currentHUD();
    if (!hud)
        return;
    // The same HUD shown again only lasts longer, unless it has collapsed meanwhile.
    const bool isNew = hud != lastHUD_ || !isExpanded_;
    lastHUD_ = hud;
    if (userExpanded_ && isLevel(hud->type)) {
        if (isNew)
            logCollapse(
                QStringLiteral("SKIPPING volume/brightness expand — user is browsing pages"));
        return;
    }
    if (isNew) {
        playHaptic();
        logCollapse(QStringLiteral("EXPAND_TEMP"));
        shownHUD_ = hud;
        hoverOutChecks_.clear(); // they were about what the HUD has replaced
        setState(true, false);
        Q_EMIT shownHUDChanged();
    }
    if (presentation() == Presentation::HUD)
        scheduleCollapse(seconds(hudManager_.currentHUDDuration()));
}

void ContentView::pickerShown()
{
    logger_.log(IslandDebugLogger::Category::Airplay,
                QStringLiteral("PICKER_SHOWN — cancelling collapse"));
    airPlayPickerOpen_ = true;
    cancelCollapse();
}

void ContentView::pickerDismissed()
{
    logger_.log(IslandDebugLogger::Category::Airplay,
                QStringLiteral("PICKER_DISMISSED — scheduling collapse"));
    airPlayPickerOpen_ = false;
    if (isExpanded_)
        scheduleCollapse();
}

void ContentView::dragEntered()
{
    if (isDraggingFile_)
        return;
    isDraggingFile_ = true;
    pageBeforeDrag_ = pages_.islandPage();
    openedByDrag_ = !isExpanded_;
    cancelCollapse();
    pages_.show(IslandPage::FileTray);
    setState(true, true);
    Q_EMIT draggingChanged();
}

void ContentView::dragExited()
{
    if (!isDraggingFile_)
        return;
    isDraggingFile_ = false;
    if (pageBeforeDrag_)
        pages_.show(*pageBeforeDrag_);
    pageBeforeDrag_.reset();
    // A HUD for the dropped file has its own time.
    if (userExpanded_ && openedByDrag_)
        scheduleCollapse(hoverOutGrace);
    else if (isExpanded_ && !shownHUD_)
        scheduleCollapse();
    Q_EMIT draggingChanged();
}

void ContentView::dismissHUD()
{
    if (!shownHUD_)
        return;
    const HUDContent hud = *shownHUD_;
    cancelCollapse();
    collapse();
    hudManager_.dismissCurrentHUD();
    hudManager_.removeActivity(static_cast<int>(hudManager_.hudQueue().indexOf(hud)));
}

void ContentView::dismissIdleActivity()
{
    if (idleActivity())
        hudManager_.removeActivity(hudManager_.currentQueueIndex());
}

void ContentView::scheduleCollapse(Duration delay)
{
    collapseIsRearmed_ = false;
    collapseWorkItem_ = runLoop_.after(delay, [this] { collapseDue(); });
}

void ContentView::scheduleCollapse()
{
    scheduleCollapse(seconds(settings_.autoCollapseDelay.get()));
}

void ContentView::cancelCollapse()
{
    collapseWorkItem_.cancel();
}

void ContentView::collapseDue()
{
    if (!collapseIsHeldUp())
        return collapse();
    scheduleCollapse(std::max(seconds(settings_.autoCollapseDelay.get()), shortestRearm));
    collapseIsRearmed_ = true;
}

void ContentView::collapse()
{
    setState(false, false);
}

bool ContentView::collapseIsHeldUp() const
{
    return pointerInside_ || airPlayPickerOpen_ || isDraggingFile_ || isTyping_;
}

void ContentView::setState(bool isExpanded, bool userExpanded)
{
    const auto before = presentation();
    isExpanded_ = isExpanded;
    userExpanded_ = userExpanded;
    const bool hudEnded = shownHUD_ && presentation() != Presentation::HUD;
    if (hudEnded)
        shownHUD_.reset();
    updateSize();
    if (presentation() != Presentation::Expanded)
        keyboardLeft();
    if (presentation() != before) {
        offerPages();
        Q_EMIT presentationChanged();
    }
    if (hudEnded)
        Q_EMIT shownHUDChanged();
}

void ContentView::updateSize()
{
    const auto presentation = this->presentation();
    QSizeF size = panel_.collapsedSize();
    if (presentation == Presentation::Expanded)
        size = dashboardSize + QSizeF(0, panel_.housingHeight());
    else if (shownHUD_)
        size = hudSize(shownHUD_->type) + QSizeF(0, panel_.housingHeight());
    else
        size.rwidth() += 2 * wings_.content().width();

    panel_.setIdle(presentation == Presentation::Collapsed);
    panel_.setSize(size);
    if (size == islandSize_)
        return;
    islandSize_ = size;
    Q_EMIT islandSizeChanged();
}

void ContentView::playHaptic()
{
    if (settings_.hapticFeedback.get())
        haptics_.performFeedback();
}

void ContentView::logCollapse(const QString &message, IslandDebugLogger::CallSite where)
{
    logger_.log(IslandDebugLogger::Category::Collapse, message, where);
}

} // namespace quillmere
