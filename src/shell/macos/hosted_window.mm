#include "shell/macos/hosted_window.h"

namespace orvelle {

HostedWindow::HostedWindow(std::unique_ptr<QWindow> window) : m_window(std::move(window)) {
    // Before the view exists, so that Qt creates no window of the system for it.
    m_window->setFlags(m_window->flags() | Qt::SubWindow);
    const NSRect frame = NSMakeRect(0, 0, m_window->width(), m_window->height());
    m_container = Retained<NSView*>([[NSView alloc] initWithFrame:frame]);
    NSView* const content = nativeView(*m_window);
    [content setFrame:frame];
    [content setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [m_container.get() addSubview:content];
}

HostedWindow::~HostedWindow() {
    // The system may keep the container until it has faded out.
    [nativeView(*m_window) removeFromSuperview];
}

void HostedWindow::takeKeys() { [[m_container.get() window] makeFirstResponder:nativeView(*m_window)]; }

} // namespace orvelle
