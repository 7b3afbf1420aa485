#include "shell/macos/hosted_window.h"

#include <QKeyEvent>
#include <QPlatformSurfaceEvent>

#include <utility>

namespace orvelle {
namespace {

bool isEscape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

bool isEndOfNativeWindow(const QEvent& event) {
    return event.type() == QEvent::PlatformSurface &&
           static_cast<const QPlatformSurfaceEvent&>(event).surfaceEventType() ==
               QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed;
}

} // namespace

HostedWindow::HostedWindow(std::unique_ptr<QWindow> window, Requests requests)
    : m_window(std::move(window)), m_requests(std::move(requests)),
      m_observer([[KeyWindowObserver alloc] initWithKeyWindowListener:this]) {
    // Before the view exists, so that Qt creates no window of the system for it.
    m_window->setFlags(m_window->flags() | Qt::SubWindow);
    m_container = Retained<NSView*>(
        [[NSView alloc] initWithFrame:NSMakeRect(0, 0, m_window->width(), m_window->height())]);
    m_window->installEventFilter(this);
    connect(m_window.get(), &QWindow::visibleChanged, this, &HostedWindow::visibleChanged);
    takeView();
    [m_observer.get() start];
}

HostedWindow::~HostedWindow() {
    [m_observer.get() stop];
    m_window->disconnect(this);
    m_window->removeEventFilter(this);
    // The system may keep the container until it has faded out.
    [m_view removeFromSuperview];
}

void HostedWindow::show() {
    m_isShown = true;
    if (m_view == nil)
        takeView();
    m_window->setVisible(true);
}

void HostedWindow::hide() {
    m_isShown = false;
    m_window->setVisible(false);
}

void HostedWindow::visibleChanged(bool isVisible) {
    if (!isVisible && std::exchange(m_isShown, false))
        m_requests.close();
}

void HostedWindow::takeView() {
    m_view = nativeView(*m_window);
    [m_container.get() addSubview:m_view];
    [m_view setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [m_view setFrame:[m_container.get() bounds]];
}

void HostedWindow::takeKeys() {
    NSWindow* const window = [m_container.get() window];
    // A view that has the keys already would not tell Qt of them again.
    [window makeFirstResponder:nil];
    [window makeFirstResponder:m_view];
}

/// Older versions of Qt do not learn from the system that a window that is not theirs got the keyboard.
void HostedWindow::becameKey(NSWindow* window) {
    if (m_isShown && window == [m_container.get() window])
        takeKeys();
}

bool HostedWindow::eventFilter(QObject* watched, QEvent* event) {
    if (isEndOfNativeWindow(*event)) {
        [m_view removeFromSuperview];
        m_view = nil;
    }
    // Qt passes no key on to the system, which would close a popover at this one.
    if (m_requests.closesAtEscape && isEscape(*event)) {
        m_requests.close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvelle

@implementation KeyWindowObserver

- (instancetype)initWithKeyWindowListener:(orvelle::KeyWindowListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)start {
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(becameKey:)
                                                 name:NSWindowDidBecomeKeyNotification
                                               object:nil];
}

- (void)stop {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
}

- (void)becameKey:(NSNotification*)notification {
    m_listener->becameKey(static_cast<NSWindow*>([notification object]));
}

@end
