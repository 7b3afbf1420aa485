#pragma once

#include "shell/status_bar.h"
#include "shell/tray/tray_icon.h"
#include "shell/tray/tray_panels.h"

namespace orvelle {

class SettingsStore;

/// The status bar in the desktop's tray. With the setting `compactMode` one icon stands for all items, and
/// tabs above its panel lead to the others; without it each item has an icon and a panel of its own. Main
/// thread only.
class TrayStatusBar final : public StatusBar {
    Q_OBJECT

public:
    /// Both references must outlive the object.
    TrayStatusBar(const SettingsStore& settings, TrayWindows windows, TrayBus bus,
                  AnimationClock& clock = AnimationClock::shared());

    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override;
    void removeItem(StatusItem& item) override;
    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override;
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override;
    void setMenu(const std::vector<MenuEntry>& entries) override;
    /// Opens the panel that was open last.
    void takeKeyboard() override;
    /// The popover opens on the screen where a key of the desktop would open it.
    void chooseItem(const StatusItem& /*item*/) override { m_panels.chooseScreen({}); }

private:
    /// An icon of the tray. Without an identifier it stands for all items.
    struct Icon {
        QString identifier;
        std::unique_ptr<TrayIcon> icon;
    };

    [[nodiscard]] bool isCompact() const;
    [[nodiscard]] TrayStatusItem* find(const QString& identifier) const;
    [[nodiscard]] TrayStatusItem* firstItem() const;
    /// The item that an icon opens: its own, or the one of all whose panel is shown or was last.
    [[nodiscard]] TrayStatusItem* itemToOpen(const QString& iconIdentifier) const;
    [[nodiscard]] std::optional<TrayContent> content(const QString& iconIdentifier) const;
    [[nodiscard]] std::vector<MenuEntry> menu(const QString& iconIdentifier);
    /// What all items say, a line each.
    [[nodiscard]] QString allWords() const;
    [[nodiscard]] QStringList wantedIcons() const;
    void handleItemChange(const QString& identifier);
    void open(const QString& iconIdentifier, const QPoint& click);
    void openMenu(const QString& iconIdentifier, const QPoint& click);
    void openNeighbour(int step);
    /// Opens the panel of an item if it is not open yet.
    void showPanel(const QString& identifier);
    void updateIconsSoon();
    /// Makes an icon for each that should be there, in the order of the items, and updates their menus.
    void updateIcons();
    [[nodiscard]] std::unique_ptr<TrayIcon> makeIcon(const QString& identifier);

    const SettingsStore& m_settings;
    TrayBus m_bus;
    AnimationClock& m_clock;
    TrayPanels m_panels;
    std::vector<MenuEntry> m_menu;
    std::vector<std::unique_ptr<TrayStatusItem>> m_items; ///< from left to right
    std::vector<Icon> m_icons;
    bool m_isUpdateDue = false; ///< of the icons, in the next turn of the event loop
};

} // namespace orvelle
