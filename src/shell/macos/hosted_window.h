#pragma once

#include "shell/macos/foundation.h"

#include <QObject>
#include <QWindow>

#include <AppKit/AppKit.h>
#include <functional>
#include <memory>

namespace orvelle {

/// The view in which Qt draws the window. Qt owns it and creates it now if need be. It lives as long as the
/// window's native window, which a window loses when it is closed. It is defined in a file of its own, for
/// which the tests have a substitute.
[[nodiscard]] NSView* nativeView(QWindow& window);

/// Hears which window of the system gets the keyboard.
class KeyWindowListener {
  public:
    virtual ~KeyWindowListener() = default;
    virtual void becameKey(NSWindow* window) = 0;
};

} // namespace orvelle

/// Passes on which window of the program gets the keyboard.
@interface KeyWindowObserver : NSObject {
  @private
    orvelle::KeyWindowListener* m_listener;
}
/// The listener must live until `stop` is called.
- (instancetype)initWithKeyWindowListener:(orvelle::KeyWindowListener*)listener;
- (void)start;
- (void)stop;
@end

namespace orvelle {

/// A window of Qt as the content of a window of the system. Qt knows nothing of that window, so the host of
/// the content closes it when the content is closed.
class HostedWindow final : public QObject, private KeyWindowListener {
  public:
    /// What the content wants of its host.
    struct Requests {
        /// The content was hidden, not by its host.
        std::function<void()> close;
        /// Whether Escape closes the content, which otherwise gets that key.
        bool closesAtEscape = false;
    };

    /// `window` has not been shown yet.
    HostedWindow(std::unique_ptr<QWindow> window, Requests requests);
    ~HostedWindow() override;
    HostedWindow(const HostedWindow&) = delete;
    HostedWindow& operator=(const HostedWindow&) = delete;

    /// Has the window's initial size; the window fills it and grows with it.
    [[nodiscard]] NSView* container() const { return m_container.get(); }
    void show();
    /// A hidden content is not drawn.
    void hide();
    /// Directs the keys that are pressed in the system's window to the content, also when that window gets
    /// the keyboard later.
    void takeKeys();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void becameKey(NSWindow* window) override;
    void visibleChanged(bool isVisible);
    void takeView();

    std::unique_ptr<QWindow> m_window;
    Requests m_requests;
    Retained<NSView*> m_container;
    Retained<KeyWindowObserver*> m_observer;
    NSView* m_view = nil; ///< nothing while the window has no native window
    bool m_isShown = false;
};

} // namespace orvelle
