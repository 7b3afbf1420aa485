#pragma once

#include "shell/tray/tray_place.h"
#include "shell/tray/tray_popover.h"
#include "shell/tray/tray_strip.h"

#include <QPointer>
#include <QScreen>

#include <optional>
#include <vector>

namespace orvelle {

/// How the windows of the tray get on the screen.
struct TrayWindows {
    MakePopup makePopup; ///< of panels and menus
    /// Of the tabs above a panel: must leave the keyboard where it is. Empty where the desktop places windows
    /// itself; there are no tabs then.
    MakePopup makeStrip = {};
    /// Where the mouse is; nothing where the desktop does not tell.
    std::function<std::optional<QPoint>()> cursorPosition = [] { return std::nullopt; };
};

/// The windows of the tray: the panels, above them tabs to choose another panel, and the menu. All open in
/// the corner of one screen. Main thread only.
class TrayPanels final : public QObject, private TrayStage {
    Q_OBJECT

public:
    /// `clock` must outlive the object.
    TrayPanels(TrayWindows windows, const AnimationClock& clock);

    [[nodiscard]] Bar& tabs() { return m_strip.bar(); }
    /// Whether tabs appear with a panel.
    void setHasTabs(bool hasTabs);

    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent);
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu();

    /// What opens next opens on the screen where an icon was clicked.
    void chooseScreen(const QPoint& click);
    /// The item whose panel is shown, by its identifier; empty when none is.
    [[nodiscard]] QString shownItem() const;
    /// The item whose panel opened last, by its identifier; empty at first.
    [[nodiscard]] const QString& lastShownItem() const { return m_lastShown; }
    /// Whether the panel of this item, any panel when it is empty, has just closed because the user pressed
    /// elsewhere: on the icon, for example, so that the click that follows is not to open it again.
    [[nodiscard]] bool hasJustVanished(const QString& identifier) const;

Q_SIGNALS:
    /// A key asks for the panel of the next item, +1, or of the one before, -1.
    void neighbourWanted(int step);

private:
    struct Vanished {
        QString identifier;
        double moment; ///< seconds
    };

    [[nodiscard]] QScreen& screen() const override;
    [[nodiscard]] QRect placeOf(const QRect& wanted) const override;
    [[nodiscard]] QRect sparedRectangle() const override;
    void popupOpens() override;
    void popupChanged() override;
    void add(TrayPopover& popover) override { m_popovers.push_back(&popover); }
    void remove(TrayPopover& popover) override;
    void add(TrayContextMenu& menu) override { m_menus.push_back(&menu); }
    void remove(TrayContextMenu& menu) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] bool hasShownPopup() const;
    [[nodiscard]] TrayPlaces places(const QSize& panel) const;
    void updateStrip();

    TrayWindows m_windows;
    const AnimationClock& m_clock;
    TrayStrip m_strip;
    KeptPopovers m_kept;
    std::vector<TrayPopover*> m_popovers;
    std::vector<TrayContextMenu*> m_menus;
    QPointer<QScreen> m_screen; ///< null for the primary one
    QString m_lastShown;
    std::optional<Vanished> m_vanished;
    bool m_hasTabs = false;
    bool m_isUpdateDue = false; ///< of the strip, in the next turn of the event loop
};

} // namespace orvelle
