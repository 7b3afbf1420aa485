#pragma once

#include "shell/macos/hosted_window.h"
#include "shell/macos/popover_observer.h"
#include "shell/status_bar.h"

#include <optional>

namespace orvelle {

/// A popover of the system's own under an item of its menu bar.
class MacosPopover final : public Popover, private PopoverListener {
public:
    explicit MacosPopover(PopoverContent makeContent);
    ~MacosPopover() override;
    MacosPopover(const MacosPopover&) = delete;
    MacosPopover& operator=(const MacosPopover&) = delete;

    /// True also while the click is handled whose press has just closed the popover: it closes by itself when
    /// the mouse goes down anywhere, and the click comes when it goes up.
    [[nodiscard]] bool isShown() const override;
    void show(const StatusItem& item) override;
    void close() override;

private:
    /// Not by a press on the item that it stands under.
    [[nodiscard]] bool mayClose() const override;
    void willClose() override;
    void didClose() override;
    [[nodiscard]] bool makeContent();

    PopoverContent m_makeContent;
    std::optional<HostedWindow> m_content; ///< nothing before the first showing
    Retained<PopoverObserver*> m_observer;
    Retained<NSPopover*> m_popover;
    Retained<NSView*> m_anchor; ///< what it was shown under last
    bool m_isAskedToClose = false;
    std::optional<NSTimeInterval> m_closedByItself; ///< when, by the clock of the system's uptime
};

} // namespace orvelle
