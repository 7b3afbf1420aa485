#pragma once

#include "appkit/simulated/desktop.h"

#include <AppKit/AppKit.h>
#include <ServiceManagement/ServiceManagement.h>

#include <utility>

/// What the simulated classes share. Reference counting by hand and a stack of pools, as in the real
/// Foundation.
namespace orvelle::simulated {

using Objects = std::vector<id>;

/// Retains what is set and releases what was there.
template <class Object> void assign(Object& place, id object) {
    [object retain];
    [place release];
    place = object;
}

/// The only object of its class, which belongs to the system.
id theOnly(Class objectClass);

[[nodiscard]] std::string textOf(NSString* text);

/// A list that lives until the pool ends. Takes over one reference to each object.
NSArray* makeArray(const Objects& objects);

/// In Qt's terms.
inline constexpr int escapeKey = 0x01000000;

/// What the tests ask of a window.
struct WindowRecord {
    WindowState state{};
    bool isProgramsOwn = false;
    double backingScale = 0;
    NSResponder* firstResponder = nil;
};
WindowRecord& recordOf(NSWindow* window);
/// A window that the system makes, released by the code that asked for it.
NSWindow* makeSystemWindow();
/// Takes the view in as its content, in the whole window.
void fill(NSWindow* window, NSView* content);
/// The window gets the keyboard now, or as soon as the program is active.
void askForKeyboard(NSWindow* window);
/// The window is gone. Another one of the program gets the keyboard that it had.
void loseKeyboard(NSWindow* gone);
/// The window that has the keyboard; nil while another program has it.
[[nodiscard]] NSWindow* keyWindow();
/// How often the keyboard has moved from one window to another.
[[nodiscard]] unsigned keyboardChanges();
void forgetKeyboard();
/// Every window that lives, those of the system too.
[[nodiscard]] std::vector<NSWindow*>& allWindows();

/// From left to right.
[[nodiscard]] std::vector<NSStatusItem*>& allStatusItems();
[[nodiscard]] std::vector<NSPopover*>& allPopovers();

struct Event {
    NSEventType type = NSEventTypeKeyDown;
    NSWindow* window = nil;
    NSEventModifierFlags modifiers = 0;
    int key = 0;
};
/// Runs with an event as the current one, within a pool, as the main loop does.
void handleEvent(Event given, const std::function<void()>& handling);
/// The event that is being handled; nil for none.
[[nodiscard]] NSEvent* handledEvent();
/// Runs without an event, within a pool.
void handleNoEvent(const std::function<void()>& handling);

/// The caller releases it.
[[nodiscard]] NSNotification* makeNotification(NSString* name, id sender);
/// Tells those who want to hear of it through the program's own centre.
void post(NSString* name, id sender);
void post(NSNotificationCenter* center, NSString* name, id sender);
void forgetObservers();

/// Whether the responder is Qt's view, which has told Qt that it has the keyboard.
[[nodiscard]] bool isQtsViewWithFocus(NSResponder* responder);
/// Whether it is Qt's view of a window that shows its content.
[[nodiscard]] bool showsQtsContent(NSView* view);

/// What a press anywhere does to popovers that are open.
void closeTransientPopovers();
/// Opens a menu until an entry is chosen or it is cancelled.
void trackMenu(NSMenu* menu);

/// The context in which views draw; null outside drawing.
[[nodiscard]] CGContextRef& currentDrawing();

} // namespace orvelle::simulated

struct CGContext {
    std::optional<orvelle::simulated::Drawing> drawing{};
    std::uint32_t* pixels = nullptr; ///< of a context that draws into memory, and how many there are in a row
    std::size_t pixelsPerRow = 0;
    std::size_t height = 0;
};

@interface NSStatusItem (Simulated)
- (id)initWithLength:(CGFloat)length;
@end

@interface NSControl (Simulated)
- (void)sendAction;
@end

@interface NSStatusBarButton (Simulated)
- (id)initForItem:(NSStatusItem*)item;
@end
