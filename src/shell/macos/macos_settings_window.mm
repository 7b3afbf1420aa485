#include "shell/macos/hosted_window.h"
#include "shell/macos/macos_desktop.h"

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
class MacosSettingsWindow final : public SettingsWindow {
  public:
    explicit MacosSettingsWindow(std::unique_ptr<QWindow> content)
        : m_content(std::move(content)), m_window(makeWindow()) {
        [m_window.get() setContentView:m_content.container()];
        m_content.setVisible(true);
        // The place of the last time goes before the middle of the screen.
        [m_window.get() center];
        [m_window.get() setFrameAutosaveName:@"OrvelleSettings"];
    }
    ~MacosSettingsWindow() override {
        const ReleasePool pool;
        [m_window.get() close];
    }
    MacosSettingsWindow(const MacosSettingsWindow&) = delete;
    MacosSettingsWindow& operator=(const MacosSettingsWindow&) = delete;

    void bringForward() override {
        const ReleasePool pool;
        [m_window.get() makeKeyAndOrderFront:nil];
        m_content.takeKeys();
        [NSApp activateIgnoringOtherApps:YES];
    }

  private:
    HostedWindow m_content;
    Retained<NSWindow*> m_window;
};

} // namespace

std::unique_ptr<SettingsWindow> makeMacosSettingsWindow(std::unique_ptr<QWindow> content) {
    const ReleasePool pool;
    return std::make_unique<MacosSettingsWindow>(std::move(content));
}

} // namespace orvelle
