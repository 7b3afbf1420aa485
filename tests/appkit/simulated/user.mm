#include "appkit/simulated/objects.h"

#include <objc/runtime.h>

using namespace orvelle::simulated;

namespace orvelle::simulated {
namespace {

NSStatusBarButton* buttonOf(std::size_t item) { return allStatusItems().at(item)->m_button; }

Objects& subviewsOf(NSView* view) { return *static_cast<Objects*>(view->m_subviews); }

NSView* firstSubview(NSView* view) { return subviewsOf(view).empty() ? nil : (NSView*)subviewsOf(view)[0]; }

/// Whether the keys of the window go to what the container holds, and Qt knows it.
bool takesKeys(NSWindow* window, NSView* container) {
    return window != nil && container != nil && recordOf(window).firstResponder == firstSubview(container) &&
           isQtsViewWithFocus(recordOf(window).firstResponder);
}

/// The windows that the program made, in the order in which it did.
std::vector<NSWindow*> ownWindows() {
    std::vector<NSWindow*> own;
    for (NSWindow* window : allWindows()) {
        if (recordOf(window).isProgramsOwn)
            own.push_back(window);
    }
    return own;
}

StatusItemState stateOf(NSStatusItem* item) {
    StatusItemState state{.length = item->m_length, .hasMenu = item->m_menu != nil};
    NSStatusBarButton* const button = item->m_button;
    if (button == nil)
        return state;
    state.identifier = textOf(button->m_identifier);
    state.accessibilityLabel = textOf(button->m_accessibilityLabel);
    state.actionMask = button->m_actionMask;
    state.action = button->m_action != nullptr ? sel_getName(button->m_action) : "";
    state.hasTarget = button->m_target != nil;
    state.subviewCount = subviewsOf(button).size();
    if (NSView* const view = firstSubview(button); view != nil) {
        state.pinnedEdges = *static_cast<std::set<std::string>*>(view->m_pins);
        state.translatesAutoresizing = view->m_translatesAutoresizing;
        state.needsDisplay = view->m_needsDisplay;
    }
    return state;
}

PopoverState stateOf(NSPopover* popover) {
    NSView* const content = [popover->m_controller view];
    return {.isShown = popover->m_isShown != 0,
            .width = popover->m_contentSize.width,
            .height = popover->m_contentSize.height,
            .behavior = popover->m_behavior,
            .animates = popover->m_animates != 0,
            .hasContent = content != nil,
            .showsContent = content != nil && showsQtsContent(firstSubview(content)),
            .anchorIdentifier = textOf([(NSStatusBarButton*)popover->m_anchorView identifier]),
            .anchorWidth = popover->m_anchorRect.size.width,
            .anchorHeight = popover->m_anchorRect.size.height,
            .edge = popover->m_edge,
            .isKey = popover->m_window != nil && keyWindow() == popover->m_window,
            .contentTakesKeys = takesKeys(popover->m_window, content)};
}

/// The system lays the views of a button out before it draws them or asks where a click goes.
void layOut(NSStatusBarButton* button) {
    for (id view : subviewsOf(button)) {
        if (static_cast<std::set<std::string>*>(((NSView*)view)->m_pins)->size() == 4)
            [view setFrame:[button bounds]];
    }
}

} // namespace

void press(std::size_t item, MouseButton button) {
    const NSEventType type =
        button == MouseButton::left ? NSEventTypeLeftMouseDown : NSEventTypeRightMouseDown;
    handleEvent({.type = type, .window = [buttonOf(item) window]}, closeTransientPopovers);
}

void release(std::size_t item, MouseButton button, bool holdsControl) {
    const NSEventType type = button == MouseButton::left ? NSEventTypeLeftMouseUp : NSEventTypeRightMouseUp;
    const NSEventModifierFlags modifiers =
        holdsControl ? NSEventModifierFlags{NSEventModifierFlagControl} : 0;
    NSStatusBarButton* const target = buttonOf(item);
    handleEvent({.type = type, .window = [target window], .modifiers = modifiers}, [&] {
        if (target->m_item->m_menu != nil)
            [target performClick:nil];
        else if ((target->m_actionMask & (1ULL << type)) != 0)
            [target sendAction];
    });
}

void click(std::size_t item, MouseButton button, bool holdsControl) {
    press(item, button);
    desktop().script.uptimeSeconds += 0.1;
    release(item, button, holdsControl);
    desktop().script.uptimeSeconds += 1; // nobody clicks faster
}

void clickElsewhere() {
    handleEvent({.type = NSEventTypeLeftMouseDown}, closeTransientPopovers);
    activateOtherProgram();
}

void pressEscape() {
    if (keyWindow() == nil)
        return; // another program gets it
    handleEvent({.window = keyWindow(), .key = escapeKey},
                [] { [recordOf(keyWindow()).firstResponder keyDown:handledEvent()]; });
}

void minimizeWindow(std::size_t window) {
    NSWindow* const minimized = ownWindows().at(window);
    recordOf(minimized).state.isMiniaturized = true;
    recordOf(minimized).state.isVisible = false;
    handleNoEvent([&] { loseKeyboard(minimized); });
}

void closeWindow(std::size_t window) {
    handleNoEvent([&] { [ownWindows().at(window) close]; });
}

void sendActionWithoutEvent(std::size_t item) {
    handleNoEvent([&] { [buttonOf(item) sendAction]; });
}

std::optional<Drawing> draw(std::size_t item) {
    NSStatusBarButton* const button = buttonOf(item);
    if (button == nil)
        return std::nullopt;
    layOut(button);
    NSView* const view = firstSubview(button);
    if (view == nil || !view->m_needsDisplay)
        return std::nullopt;
    CGContext context;
    currentDrawing() = &context;
    handleNoEvent([&] { [view drawRect:[view bounds]]; });
    currentDrawing() = nullptr;
    view->m_needsDisplay = NO;
    return context.drawing;
}

void changeScreen(std::size_t item, double backingScale) {
    recordOf([buttonOf(item) window]).backingScale = backingScale;
    handleNoEvent([&] { [firstSubview(buttonOf(item)) viewDidChangeBackingProperties]; });
}

void loseIdentifier(std::size_t item) { [buttonOf(item) setIdentifier:nil]; }

std::vector<StatusItemState> statusItems() {
    std::vector<StatusItemState> states;
    for (NSStatusItem* item : allStatusItems())
        states.push_back(stateOf(item));
    return states;
}

bool clicksReachTheButton(std::size_t item) {
    NSStatusBarButton* const button = buttonOf(item);
    layOut(button);
    const NSSize size = [button bounds].size;
    const NSPoint points[] = {{0, 0}, {size.width / 2, size.height / 2}, {size.width - 1, size.height - 1}};
    for (const NSPoint& point : points) {
        if ([button hitTest:point] != button)
            return false;
    }
    return true;
}

std::vector<PopoverState> popovers() {
    std::vector<PopoverState> states;
    for (NSPopover* popover : allPopovers())
        states.push_back(stateOf(popover));
    return states;
}

std::vector<WindowState> windows() {
    std::vector<WindowState> states;
    for (NSWindow* window : ownWindows()) {
        WindowState state = recordOf(window).state;
        NSView* const container = firstSubview(window->m_contentView);
        state.isKey = keyWindow() == window;
        state.contentTakesKeys = takesKeys(window, container);
        if (container != nil) {
            const NSRect frame = [container frame];
            state.contentFrame = {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
            state.showsContent = showsQtsContent(firstSubview(container));
        }
        states.push_back(state);
    }
    return states;
}

} // namespace orvelle::simulated
