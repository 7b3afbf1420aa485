#pragma once

#include "shell/macos/hosted_window.h"
#include "shell/macos/program_activation.h"
#include "shell/status_bar.h"

#include <optional>

namespace orvelle {

/// Hears what becomes of a popover that is shown.
class PopoverListener {
  public:
    virtual ~PopoverListener() = default;
    /// Whether it may close by itself now.
    [[nodiscard]] virtual bool mayClose() const = 0;
    /// It begins to close, for any reason.
    virtual void willClose() = 0;
    /// It cannot be seen any more.
    virtual void didClose() = 0;
};

} // namespace orvelle

/// Passes on what the system says about a popover.
@interface PopoverObserver : NSObject <NSPopoverDelegate> {
  @private
    orvelle::PopoverListener* m_listener;
}
/// The listener must live as long as this is the delegate of a popover.
- (instancetype)initWithPopoverListener:(orvelle::PopoverListener*)listener;
@end

namespace orvelle {

/// A popover of the system's own under an item of its menu bar.
class MacosPopover final : public Popover, private PopoverListener {
  public:
    MacosPopover(PopoverContent makeContent, ProgramActivation& activation);
    ~MacosPopover() override;
    MacosPopover(const MacosPopover&) = delete;
    MacosPopover& operator=(const MacosPopover&) = delete;

    /// True also during the click whose press has just closed the popover: it closes when a button is pressed
    /// anywhere, and the click follows when the button is released.
    [[nodiscard]] bool isShown() const override;
    void show(const StatusItem& item) override;
    void close() override;

  private:
    /// False for a press on its own item.
    [[nodiscard]] bool mayClose() const override;
    void willClose() override;
    void didClose() override;
    [[nodiscard]] bool makeContent();

    PopoverContent m_makeContent;
    ProgramActivation& m_activation;
    std::optional<HostedWindow> m_content; ///< nothing before the first showing
    Retained<PopoverObserver*> m_observer;
    Retained<NSPopover*> m_popover;
    Retained<NSView*> m_anchor; ///< the view that it was last shown under
    bool m_isAskedToClose = false;
    std::optional<NSTimeInterval> m_closedByItself; ///< when, by the clock of the system's uptime
};

} // namespace orvelle
