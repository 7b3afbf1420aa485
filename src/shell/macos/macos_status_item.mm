#include "shell/macos/macos_status_item.h"

namespace orvelle {
namespace {

void pinToEdges(NSView* view, NSView* container) {
    [[[view leadingAnchor] constraintEqualToAnchor:[container leadingAnchor]] setActive:YES];
    [[[view trailingAnchor] constraintEqualToAnchor:[container trailingAnchor]] setActive:YES];
    [[[view topAnchor] constraintEqualToAnchor:[container topAnchor]] setActive:YES];
    [[[view bottomAnchor] constraintEqualToAnchor:[container bottomAnchor]] setActive:YES];
}

bool isOnScreen(NSView* view) {
    return ([[view window] occlusionState] & NSWindowOcclusionStateVisible) != 0;
}

/// Removes the item. The system then forgets where the user has dragged it, which is therefore written back
/// for the next item of this name.
void removeFromBar(NSStatusItem* item, const QString& autosaveName) {
    const ReleasePool pool;
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    NSString* const key = systemText(QStringLiteral("NSStatusItem Preferred Position ") + autosaveName);
    const auto position = Retained<id>::adding([defaults objectForKey:key]);
    [[NSStatusBar systemStatusBar] removeStatusItem:item];
    if (position)
        [defaults setObject:position.get() forKey:key];
}

} // namespace

MacosStatusItem::MacosStatusItem(QString identifier, double length, id clickTarget,
                                 std::function<void()> painted)
    : m_identifier(std::move(identifier)), m_length(length), m_painted(std::move(painted)),
      m_statusItem(
          Retained<NSStatusItem*>::adding([[NSStatusBar systemStatusBar] statusItemWithLength:length])) {
    // Else its place would belong to its number, and the number to whichever module is shown.
    [m_statusItem.get() setAutosaveName:systemText(m_identifier)];
    if (NSStatusBarButton* const itsButton = button(); itsButton != nil)
        setUpButton(itsButton, clickTarget);
}

MacosStatusItem::~MacosStatusItem() {
    // The system may keep the button for a while.
    [m_hostingView.get() forgetPicture];
    [button() setTarget:nil];
    if (m_statusItem)
        removeFromBar(m_statusItem.get(), m_identifier);
}

void MacosStatusItem::setUpButton(NSStatusBarButton* button, id clickTarget) {
    m_hostingView =
        Retained<ClickThroughHostingView*>([[ClickThroughHostingView alloc] initWithPicture:this]);
    [m_hostingView.get() setTranslatesAutoresizingMaskIntoConstraints:NO];
    [button addSubview:m_hostingView.get()];
    pinToEdges(m_hostingView.get(), button);

    [button setTarget:clickTarget];
    [button setAction:@selector(statusItemClicked:)];
    [button sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
    [button setIdentifier:systemText(m_identifier)];
}

void MacosStatusItem::repaint() { [m_hostingView.get() setNeedsDisplay:YES]; }

void MacosStatusItem::setWords(const QString& /*name*/, const QString& text) {
    const ReleasePool pool;
    [button() setAccessibilityLabel:systemText(text)];
}

double MacosStatusItem::visiblePixelsPerPoint() const {
    return isOnScreen(m_hostingView.get()) ? backingScale(m_hostingView.get()) : 0;
}

void MacosStatusItem::paint(QPainter& painter, const QRectF& bounds, BarAppearance appearance) {
    if (m_paint)
        m_paint(painter, bounds, appearance);
    m_painted();
}

} // namespace orvelle
