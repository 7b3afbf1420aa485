#include "shell/macos/hosted_window.h"
#include "shell/macos/macos_desktop.h"

namespace orvelle {

/// Hears what becomes of a window.
class WindowListener {
  public:
    virtual ~WindowListener() = default;
    /// Whoever closes it.
    virtual void willClose() = 0;
};

} // namespace orvelle

/// Passes on what the system says about a window.
@interface SettingsWindowObserver : NSObject <NSWindowDelegate> {
  @private
    orvelle::WindowListener* m_listener;
}
/// The listener must live as long as this is the delegate of a window.
- (instancetype)initWithWindowListener:(orvelle::WindowListener*)listener;
@end

namespace orvelle {
namespace {

constexpr CGFloat width = 460;
constexpr CGFloat height = 640;
constexpr NSWindowStyleMask style = NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                    NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskFullSizeContentView;

Retained<NSWindow*> makeWindow() {
    Retained<NSWindow*> owner([[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, width, height)
                                                          styleMask:style
                                                            backing:NSBackingStoreBuffered
                                                              defer:NO]);
    NSWindow* const window = owner.get();
    [window setTitle:@"Orvelle Settings"];
    [window setTitlebarAppearsTransparent:YES];
    [window setTitleVisibility:NSWindowTitleVisible];
    [window setMovableByWindowBackground:YES];
    [window setReleasedWhenClosed:NO];
    [window setAppearance:[NSAppearance appearanceNamed:NSAppearanceNameDarkAqua]];
    [window setBackgroundColor:[NSColor colorWithWhite:0.1 alpha:1.0]];
    return owner;
}

/// A window of the system's own. Closed, it is only out of sight, and so is its content.
class MacosSettingsWindow final : public SettingsWindow, private WindowListener {
  public:
    MacosSettingsWindow(std::unique_ptr<QWindow> content, ProgramActivation& activation)
        : m_activation(activation),
          m_content(std::move(content), {.close = [this] { [m_window.get() close]; }}),
          m_observer([[SettingsWindowObserver alloc] initWithWindowListener:this]), m_window(makeWindow()) {
        takeContent();
        [m_window.get() setDelegate:m_observer.get()];
        // The place of the last time goes before the middle of the screen.
        [m_window.get() center];
        [m_window.get() setFrameAutosaveName:@"OrvelleSettings"];
    }
    ~MacosSettingsWindow() override {
        const ReleasePool pool;
        [m_window.get() setDelegate:nil];
        [m_window.get() close];
        m_activation.end(this);
    }
    MacosSettingsWindow(const MacosSettingsWindow&) = delete;
    MacosSettingsWindow& operator=(const MacosSettingsWindow&) = delete;

    void bringForward() override {
        const ReleasePool pool;
        m_content.show();
        m_activation.begin(this);
        if ([m_window.get() isMiniaturized])
            [m_window.get() deminiaturize:nil];
        [m_window.get() makeKeyAndOrderFront:nil];
        m_content.takeKeys();
    }

  private:
    /// The window's own view lies under the title too, which would cover the content.
    void takeContent() {
        NSView* const container = m_content.container();
        [container setFrame:[m_window.get() contentLayoutRect]];
        [container setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
        [[m_window.get() contentView] addSubview:container];
    }
    void willClose() override {
        m_content.hide();
        m_activation.end(this);
    }

    ProgramActivation& m_activation;
    HostedWindow m_content;
    Retained<SettingsWindowObserver*> m_observer;
    Retained<NSWindow*> m_window;
};

} // namespace

std::unique_ptr<SettingsWindow> makeMacosSettingsWindow(std::unique_ptr<QWindow> content,
                                                        ProgramActivation& activation) {
    const ReleasePool pool;
    return std::make_unique<MacosSettingsWindow>(std::move(content), activation);
}

} // namespace orvelle

@implementation SettingsWindowObserver

- (instancetype)initWithWindowListener:(orvelle::WindowListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)windowWillClose:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->willClose();
}

@end
