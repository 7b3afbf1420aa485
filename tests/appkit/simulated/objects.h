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

/// What the tests ask of a window.
struct WindowRecord {
    WindowState state{};
    bool isProgramsOwn = false;
    double backingScale = 0;
    NSView* firstResponder = nil;
};
WindowRecord& recordOf(NSWindow* window);
/// A window that the system makes, released by the code that asked for it.
NSWindow* makeSystemWindow();
void setKeyWindow(NSWindow* window);
[[nodiscard]] NSWindow* keyWindow();
/// Every window that lives, those of the system too.
[[nodiscard]] std::vector<NSWindow*>& allWindows();

/// From left to right.
[[nodiscard]] std::vector<NSStatusItem*>& allStatusItems();
[[nodiscard]] std::vector<NSPopover*>& allPopovers();

/// Runs with an event as the current one, within a pool, as the main loop does.
void handleEvent(NSEventType type, NSWindow* window, NSEventModifierFlags modifiers,
                 const std::function<void()>& handling);
/// Runs without an event, within a pool.
void handleNoEvent(const std::function<void()>& handling);

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
