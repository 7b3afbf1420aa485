#pragma once

#include "shell/painted/bar_popups.h"
#include "shell/tray/tray_status_item.h"

class QScreen;

namespace orvelle {

class TrayContextMenu;
class TrayPopover;

/// Where a popup of the tray opens, and what it tells.
class TrayStage {
public:
    virtual ~TrayStage() = default;

    [[nodiscard]] virtual QScreen& screen() const = 0;
    /// The place of a window that would open at `wanted` if the tabs were a menu bar.
    [[nodiscard]] virtual QRect placeOf(const QRect& wanted) const = 0;
    /// A press there does not close the window.
    [[nodiscard]] virtual QRect sparedRectangle() const = 0;
    /// A popup is about to open.
    virtual void popupOpens() = 0;
    /// A popup has opened or closed.
    virtual void popupChanged() = 0;

    // What comes and goes on the stage.
    virtual void add(TrayPopover& popover) = 0;
    virtual void remove(TrayPopover& popover) = 0;
    virtual void add(TrayContextMenu& menu) = 0;
    virtual void remove(TrayContextMenu& menu) = 0;
};

/// A popup that opens where its stage wants.
class StagedPopup final : public Popup {
    Q_OBJECT

public:
    /// `stage` must outlive the object. `vanished` is called when the popup closes without being told to and
    /// without Escape.
    StagedPopup(TrayStage& stage, std::unique_ptr<Popup> popup, std::function<void()> vanished);

    void show(QScreen& screen, const QRect& geometry, const QRectF& spared) override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return m_popup->isShown(); }

private:
    void handleClosed();

    TrayStage& m_stage;
    std::unique_ptr<Popup> m_popup;
    std::function<void()> m_vanished;
    bool m_isToldToClose = false;
};

/// The popover of an item of the tray. Main thread only.
class TrayPopover final : public Popover {
public:
    /// `shown` is called when the popover is about to open, `vanished` as by `StagedPopup`, both with the
    /// item's identifier.
    struct Events {
        std::function<void(const QString&)> shown;
        std::function<void(const QString&)> vanished;
    };
    TrayPopover(TrayStage& stage, Bar& tabs, KeptPopovers& kept, const MakePopup& makePopup,
                const PopoverContent& makeContent, Events events);
    ~TrayPopover() override;

    [[nodiscard]] bool isShown() const override { return m_popover.isShown(); }
    void show(const StatusItem& item) override;
    void close() override;
    /// Of the item under which the popover opened last.
    [[nodiscard]] const QString& identifier() const { return m_identifier; }

private:
    TrayStage& m_stage;
    Events m_events;
    QString m_identifier;
    BarPopover m_popover;
};

/// The menu of an item of the tray where the program shows it: over a tab, or in a tray that has no menus.
class TrayContextMenu final : public ContextMenu {
public:
    TrayContextMenu(TrayStage& stage, Bar& tabs, const MakePopup& makePopup);
    ~TrayContextMenu() override;

    void show(const StatusItem& item, std::vector<MenuEntry> entries) override;
    void close() override { m_menu.close(); }
    [[nodiscard]] bool isShown() const { return m_popup->isShown(); }

private:
    TrayStage& m_stage;
    StagedPopup* m_popup = nullptr; ///< owned by `m_menu`
    BarContextMenu m_menu;
};

} // namespace orvelle
