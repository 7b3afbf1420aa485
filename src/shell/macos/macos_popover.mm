#include "shell/macos/macos_popover.h"

#include "shell/macos/macos_status_item.h"

namespace orvelle {
namespace {

constexpr CGFloat width = 320;
constexpr CGFloat height = 500;

/// The system rounds its popovers itself.
constexpr double contentCornerRadius = 0;

/// The longest time between the press and the release of a click.
constexpr NSTimeInterval clickSeconds = 0.3;

NSTimeInterval uptime() { return [[NSProcessInfo processInfo] systemUptime]; }

} // namespace

MacosPopover::MacosPopover(PopoverContent makeContent, ProgramActivation& activation)
    : m_makeContent(std::move(makeContent)), m_activation(activation),
      m_observer([[PopoverObserver alloc] initWithPopoverListener:this]),
      m_popover([[NSPopover alloc] init]) {
    [m_popover.get() setContentSize:NSMakeSize(width, height)];
    [m_popover.get() setBehavior:NSPopoverBehaviorTransient];
    [m_popover.get() setAnimates:YES];
    [m_popover.get() setDelegate:m_observer.get()];
}

MacosPopover::~MacosPopover() {
    const ReleasePool pool;
    // It may go on fading out and must not call this object then.
    [m_popover.get() setDelegate:nil];
    [m_popover.get() close];
    m_activation.end(this);
}

bool MacosPopover::isShown() const {
    const ReleasePool pool;
    return [m_popover.get() isShown] || (m_closedByItself && uptime() - *m_closedByItself < clickSeconds);
}

bool MacosPopover::makeContent() {
    if (m_content)
        return true;
    std::unique_ptr<QWindow> window = m_makeContent(contentCornerRadius);
    if (window == nullptr)
        return false;
    m_content.emplace(std::move(window),
                      HostedWindow::Requests{.close = [this] { close(); }, .closesAtEscape = true});
    const Retained<NSViewController*> controller([[NSViewController alloc] init]);
    [controller.get() setView:m_content->container()];
    [m_popover.get() setContentViewController:controller.get()];
    return true;
}

void MacosPopover::show(const StatusItem& item) {
    const ReleasePool pool;
    NSStatusBarButton* const button = static_cast<const MacosStatusItem&>(item).button();
    if (button == nil || !makeContent())
        return;
    m_anchor = Retained<NSView*>::adding(button);
    m_isAskedToClose = false;
    m_closedByItself.reset();
    m_activation.begin(this);
    m_content->show();
    [m_popover.get() showRelativeToRect:[button bounds] ofView:button preferredEdge:NSRectEdgeMinY];
    [[m_content->container() window] makeKeyWindow];
    m_content->takeKeys();
}

void MacosPopover::close() {
    const ReleasePool pool;
    m_isAskedToClose = true;
    m_closedByItself.reset();
    [m_popover.get() close];
}

bool MacosPopover::mayClose() const {
    NSEvent* const event = [NSApp currentEvent];
    const bool isPress =
        [event type] == NSEventTypeLeftMouseDown || [event type] == NSEventTypeRightMouseDown;
    return !isPress || [event window] != [m_anchor.get() window];
}

void MacosPopover::willClose() {
    if (!m_isAskedToClose)
        m_closedByItself = uptime();
}

void MacosPopover::didClose() {
    m_activation.end(this);
    if (m_content)
        m_content->hide();
}

} // namespace orvelle

@implementation PopoverObserver

- (instancetype)initWithPopoverListener:(orvelle::PopoverListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (BOOL)popoverShouldClose:(NSPopover*)popover {
    static_cast<void>(popover);
    return m_listener->mayClose() ? YES : NO;
}

- (void)popoverWillClose:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->willClose();
}

- (void)popoverDidClose:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->didClose();
}

@end
