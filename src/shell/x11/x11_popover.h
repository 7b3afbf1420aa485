#pragma once

#include "shell/painted/bar_window.h"
#include "shell/status_bar.h"
#include "shell/x11/popup_window.h"

#include <QElapsedTimer>

#include <optional>
#include <vector>

namespace orvelle {

class X11Popover;

/// The popovers of one bar whose windows are kept, the one that opened last at the end. Only a few are: each
/// costs 2 MB, and opens again in a quarter of the time that it takes to make it.
using KeptPopovers = std::vector<X11Popover*>;

/// The popover of an item in the program's own bar. It opens when the clicks that have arrived are handled,
/// so that many clicks at once end in one change.
class X11Popover final : public QObject, public Popover {
    Q_OBJECT

public:
    /// `kept` must outlive the object. `dismissed` is called when Escape is about to close the popover.
    X11Popover(
        BarWindow& bar, KeptPopovers& kept, PopoverContent makeContent,
        std::function<void()> dismissed = [] {});
    ~X11Popover() override;

    [[nodiscard]] bool isShown() const override { return m_item != nullptr; }
    void show(const StatusItem& item) override;
    void close() override;

private:
    void open();
    void setItem(const StatusItem* item);
    /// The window, made when there is none yet; null when it cannot be made.
    [[nodiscard]] PopupWindow* popupWindow();
    void releaseWindow();
    /// Keeps the window of this popover at the expense of the one that has been closed for the longest time.
    void keepWindow();
    void logPainted();

    BarWindow& m_bar;
    KeptPopovers& m_kept;
    const StatusItem* m_item = nullptr; ///< under which the popover is shown, or is about to be
    QElapsedTimer m_sinceShow;
    PopoverContent m_makeContent;
    std::function<void()> m_dismissed;
    std::unique_ptr<QWindow> m_window; ///< null while it is not kept
    QSize m_size;                      ///< wanted by the content
    std::optional<PopupWindow> m_popup;
};

} // namespace orvelle
