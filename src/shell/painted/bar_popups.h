#pragma once

#include "shell/painted/bar.h"
#include "shell/painted/menu_window.h"
#include "shell/painted/popup.h"
#include "shell/status_bar.h"

#include <QElapsedTimer>

#include <optional>
#include <vector>

namespace orvelle {

class BarPopover;

/// The popovers of one bar that keep their windows while they are closed, in the order in which they last
/// opened. Only two do: a window costs 2 MB, and opens again in a quarter of the time that making it takes.
using KeptPopovers = std::vector<BarPopover*>;

/// The popover of an item in the program's own bar. It opens after the pending clicks have been handled, so
/// that several clicks at once cause one change.
class BarPopover final : public QObject, public Popover {
    Q_OBJECT

public:
    /// `kept` must outlive the object. `dismissed` is called when Escape is about to close the popover.
    BarPopover(
        Bar& bar, KeptPopovers& kept, MakePopup makePopup, PopoverContent makeContent,
        std::function<void()> dismissed = [] {});
    ~BarPopover() override;

    [[nodiscard]] bool isShown() const override { return m_item != nullptr; }
    void show(const StatusItem& item) override;
    void close() override;

private:
    void open();
    void setItem(const StatusItem* item);
    /// The popup of the window; both are made if need be. Null when the content cannot be made.
    [[nodiscard]] Popup* popup();
    void releaseWindow();
    /// Keeps the window of this popover, and releases that of the one that opened the longest time ago.
    void keepWindow();
    void logPainted();

    Bar& m_bar;
    KeptPopovers& m_kept;
    const StatusItem* m_item = nullptr; ///< under which the popover is shown, or is about to be
    QElapsedTimer m_sinceShow;
    MakePopup m_makePopup;
    PopoverContent m_makeContent;
    std::function<void()> m_dismissed;
    std::unique_ptr<QWindow> m_window; ///< null while it is not kept
    QSize m_size;                      ///< wanted by the content
    std::unique_ptr<Popup> m_popup;    ///< null without a window
};

/// The menu of an item in the program's own bar.
class BarContextMenu final : public QObject, public ContextMenu {
    Q_OBJECT

public:
    /// `dismissed` is called when Escape is about to close the menu.
    BarContextMenu(const Bar& bar, const MakePopup& makePopup, std::function<void()> dismissed);

    void show(const StatusItem& item, std::vector<MenuEntry> entries) override;
    void close() override { m_popup->close(); }

private:
    void choose(std::size_t index);

    const Bar& m_bar;
    const StatusItem* m_item = nullptr; ///< under which the menu is shown
    MenuWindow m_window;
    std::unique_ptr<Popup> m_popup;
};

} // namespace orvelle
