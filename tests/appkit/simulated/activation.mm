#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

// Which program is the active one, and which window has the keyboard. Both are decided by the system after it
// was asked.
namespace orvelle::simulated {
namespace {

struct Keyboard {
    NSWindow* window = nil; ///< that has it
    NSWindow* wanted = nil; ///< that has it as soon as the program is active
    unsigned changes = 0;
    bool isActivationAskedFor = false;
};

Keyboard& keyboard() {
    static Keyboard place;
    return place;
}

void moveKeyboardTo(NSWindow* window) {
    if (keyboard().window == window)
        return;
    keyboard().window = window;
    ++keyboard().changes;
    if (window != nil)
        post(NSWindowDidBecomeKeyNotification, window);
}

/// The window that the system goes on with when the one with the keyboard is gone.
NSWindow* nextWindow(NSWindow* gone) {
    for (NSWindow* window : allWindows()) {
        if (window != gone && recordOf(window).isProgramsOwn && recordOf(window).state.isVisible)
            return window;
    }
    return nil;
}

void deactivate() {
    desktop().isActive = false;
    keyboard().isActivationAskedFor = false;
    moveKeyboardTo(nil);
}

} // namespace

void forgetKeyboard() { keyboard() = {}; }

NSWindow* keyWindow() { return keyboard().window; }

unsigned keyboardChanges() { return keyboard().changes; }

void askForKeyboard(NSWindow* window) {
    keyboard().wanted = window;
    if (desktop().isActive)
        moveKeyboardTo(window);
}

void loseKeyboard(NSWindow* gone) {
    if (keyboard().wanted == gone)
        keyboard().wanted = nextWindow(gone);
    if (keyboard().window == gone)
        moveKeyboardTo(keyboard().wanted);
}

void letTheSystemRespond() {
    if (!std::exchange(keyboard().isActivationAskedFor, false))
        return;
    desktop().isActive = true;
    moveKeyboardTo(keyboard().wanted);
}

void activateOtherProgram() {
    handleNoEvent([] { deactivate(); });
}

void activateByTheUser() {
    keyboard().isActivationAskedFor = true;
    handleNoEvent([] {});
}

} // namespace orvelle::simulated

NSApplication* NSApp = nil;

@implementation NSApplication
- (NSEvent*)currentEvent {
    return desktop().arrives("currentEvent") ? handledEvent() : nil;
}
- (void)activateIgnoringOtherApps:(BOOL)ignoring {
    desktop().expect(ignoring, "an activation that other programs may refuse");
    // The answer comes later, as an event.
    if (!desktop().isActive && desktop().arrives("activateIgnoringOtherApps"))
        keyboard().isActivationAskedFor = true;
}
- (BOOL)isActive {
    return desktop().isActive;
}
- (BOOL)isHidden {
    return desktop().isHidden;
}
- (void)hide:(id)sender {
    static_cast<void>(sender);
    desktop().isHidden = true;
    desktop().deeds.push_back("hide the program");
    for (NSWindow* window : allWindows())
        recordOf(window).state.isVisible = false;
    deactivate();
}
- (void)unhideWithoutActivation {
    desktop().isHidden = false;
}
@end
