#include "shell/tray/tray_status_bar.h"

#include "settings/settings_store.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace orvelle {
namespace {

/// In place of an item's identifier: the icon that stands for all items.
const QString allItems;

QString programName() {
    return QStringLiteral("Orvelle");
}

/// Reports the first time that the tray is missing.
TrayBus withReport(TrayBus bus) {
    bus.trayMissing = [next = bus.trayMissing,
                       isReported = std::make_shared<bool>(false)](const QString& reason) {
        if (!std::exchange(*isReported, true))
            std::fprintf(stderr, "Orvelle waits for a tray: %s.\n", qPrintable(reason));
        next(reason);
    };
    return bus;
}

} // namespace

TrayStatusBar::TrayStatusBar(const SettingsStore& settings, TrayWindows windows, TrayBus bus,
                             AnimationClock& clock)
    : m_settings(settings)
    , m_bus(withReport(std::move(bus)))
    , m_clock(clock)
    , m_panels(std::move(windows), clock) {
    m_panels.setHasTabs(isCompact());
    connect(&settings, &SettingsStore::compactModeChanged, this, [this] {
        m_panels.setHasTabs(isCompact());
        updateIconsSoon();
    });
    connect(&m_panels, &TrayPanels::neighbourWanted, this, &TrayStatusBar::openNeighbour);
}

bool TrayStatusBar::isCompact() const {
    return m_settings.compactMode();
}

StatusItem& TrayStatusBar::addItem(const QString& identifier, double length) {
    BarItem& tab = m_panels.tabs().addItem(identifier, length);
    m_items.push_back(
        std::make_unique<TrayStatusItem>(tab, [this, identifier] { handleItemChange(identifier); }));
    updateIconsSoon();
    return *m_items.back();
}

void TrayStatusBar::removeItem(StatusItem& item) {
    const auto found = std::ranges::find(
        m_items, &item, [](const auto& present) -> const StatusItem* { return present.get(); });
    if (found == m_items.end())
        return;
    const BarItem& tab = (*found)->tab();
    m_items.erase(found);
    m_panels.tabs().removeItem(tab);
    updateIconsSoon();
}

std::unique_ptr<Popover> TrayStatusBar::makePopover(PopoverContent makeContent) {
    return m_panels.makePopover(std::move(makeContent));
}

std::unique_ptr<ContextMenu> TrayStatusBar::makeContextMenu() {
    return m_panels.makeContextMenu();
}

void TrayStatusBar::setMenu(const std::vector<MenuEntry>& entries) {
    m_menu = entries;
    updateIconsSoon();
}

void TrayStatusBar::takeKeyboard() {
    if (const TrayStatusItem* item = itemToOpen(allItems))
        showPanel(item->identifier());
}

TrayStatusItem* TrayStatusBar::find(const QString& identifier) const {
    const auto found =
        std::ranges::find(m_items, identifier, [](const auto& item) { return item->identifier(); });
    return found == m_items.end() ? nullptr : found->get();
}

TrayStatusItem* TrayStatusBar::firstItem() const {
    return m_items.empty() ? nullptr : m_items.front().get();
}

TrayStatusItem* TrayStatusBar::itemToOpen(const QString& iconIdentifier) const {
    if (iconIdentifier != allItems)
        return find(iconIdentifier);
    for (const QString& preferred : {m_panels.shownItem(), m_panels.lastShownItem()}) {
        if (TrayStatusItem* item = find(preferred))
            return item;
    }
    return firstItem();
}

void TrayStatusBar::open(const QString& iconIdentifier, const QPoint& click) {
    const TrayStatusItem* item = itemToOpen(iconIdentifier);
    // The press on the icon may have closed the panel; then the click is not to open it again.
    const bool isShown = item != nullptr && m_panels.shownItem() == item->identifier();
    if (item == nullptr || (!isShown && m_panels.hasJustVanished(iconIdentifier)))
        return;
    m_panels.chooseScreen(click);
    item->click(ClickButton::left);
}

void TrayStatusBar::openMenu(const QString& iconIdentifier, const QPoint& click) {
    if (const TrayStatusItem* item = itemToOpen(iconIdentifier)) {
        m_panels.chooseScreen(click);
        item->click(ClickButton::right);
    }
}

void TrayStatusBar::openNeighbour(int step) {
    const TrayStatusItem* shown = find(m_panels.shownItem());
    if (shown == nullptr)
        return;
    const auto count = static_cast<int>(m_items.size());
    const auto found = std::ranges::find(m_items, shown, [](const auto& item) { return item.get(); });
    const auto index = static_cast<int>(found - m_items.begin());
    m_items[static_cast<std::size_t>((index + step + count) % count)]->click(ClickButton::left);
}

void TrayStatusBar::showPanel(const QString& identifier) {
    const TrayStatusItem* item = find(identifier);
    if (item != nullptr && m_panels.shownItem() != identifier) {
        m_panels.chooseScreen({});
        item->click(ClickButton::left);
    }
}

std::optional<TrayContent> TrayStatusBar::content(const QString& iconIdentifier) const {
    const bool isOfAll = iconIdentifier == allItems;
    const TrayStatusItem* item = isOfAll ? firstItem() : find(iconIdentifier);
    if (item == nullptr)
        return std::nullopt; // the icon is about to go
    TrayContent content;
    content.title = isOfAll ? programName() : item->name();
    content.pictures = trayPictures(item->icon().paint);
    content.toolTip = {content.title.toHtmlEscaped(), (isOfAll ? allWords() : item->words()).toHtmlEscaped()};
    content.label = item->icon().label;
    content.widestLabel = item->icon().widestLabel;
    return content;
}

QString TrayStatusBar::allWords() const {
    QStringList lines;
    for (const auto& item : m_items)
        lines.append(item->words());
    return lines.join(QLatin1Char('\n'));
}

std::vector<MenuEntry> TrayStatusBar::menu(const QString& iconIdentifier) {
    // Some trays open the menu with any click, so the panels are in it too.
    std::vector<MenuEntry> entries;
    for (const auto& item : m_items) {
        const QString identifier = item->identifier();
        if (iconIdentifier == allItems || iconIdentifier == identifier)
            entries.push_back({item->name(), {}, [this, identifier] { showPanel(identifier); }});
    }
    if (!m_menu.empty())
        entries.push_back({});
    entries.insert(entries.end(), m_menu.begin(), m_menu.end());
    return entries;
}

void TrayStatusBar::handleItemChange(const QString& identifier) {
    for (const Icon& icon : m_icons) {
        if (icon.identifier == allItems || icon.identifier == identifier)
            icon.icon->update();
    }
}

void TrayStatusBar::updateIconsSoon() {
    if (!std::exchange(m_isUpdateDue, true))
        QMetaObject::invokeMethod(this, &TrayStatusBar::updateIcons, Qt::QueuedConnection);
}

QStringList TrayStatusBar::wantedIcons() const {
    QStringList wanted;
    for (const auto& item : m_items)
        wanted.append(item->identifier());
    return isCompact() && !wanted.isEmpty() ? QStringList(allItems) : wanted;
}

void TrayStatusBar::updateIcons() {
    m_isUpdateDue = false;
    const QStringList wanted = wantedIcons();
    // Trays add an icon at the end, so those behind a new one are made again.
    const auto same = std::ranges::mismatch(m_icons, wanted, {}, &Icon::identifier);
    m_icons.erase(same.in1, m_icons.end());
    for (const QString& identifier : wanted.sliced(same.in2 - wanted.begin()))
        m_icons.push_back({identifier, makeIcon(identifier)});
    for (const Icon& icon : m_icons) {
        icon.icon->setMenu(menu(icon.identifier));
        icon.icon->update();
    }
    if (!m_icons.empty())
        Q_EMIT firstPainted();
}

std::unique_ptr<TrayIcon> TrayStatusBar::makeIcon(const QString& identifier) {
    const QString id =
        identifier == allItems ? QStringLiteral("orvelle") : QStringLiteral("orvelle-") + identifier;
    const TrayActions actions{[this, identifier](const QPoint& click) { open(identifier, click); },
                              [this, identifier](const QPoint& click) { openMenu(identifier, click); }};
    return std::make_unique<TrayIcon>(
        id, [this, identifier] { return content(identifier); }, actions, m_bus, m_clock);
}

} // namespace orvelle
