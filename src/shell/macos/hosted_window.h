#pragma once

#include "shell/macos/foundation.h"

#include <QWindow>

#include <AppKit/AppKit.h>
#include <memory>

namespace orvelle {

/// The view in which Qt draws the window. The window owns it and creates it now if need be. It is defined in
/// a file of its own, for which the tests have a substitute.
[[nodiscard]] NSView* nativeView(QWindow& window);

/// A window of Qt as the content of a window of the system.
class HostedWindow {
public:
    /// `window` has not been shown yet.
    explicit HostedWindow(std::unique_ptr<QWindow> window);
    ~HostedWindow();
    HostedWindow(const HostedWindow&) = delete;
    HostedWindow& operator=(const HostedWindow&) = delete;

    /// Has the window's initial size; the window fills it and grows with it.
    [[nodiscard]] NSView* container() const { return m_container.get(); }
    /// Whether the content is drawn at all.
    void setVisible(bool isVisible) { m_window->setVisible(isVisible); }
    /// Directs the keys that are pressed in the system's window to the content.
    void takeKeys();

private:
    std::unique_ptr<QWindow> m_window;
    Retained<NSView*> m_container;
};

} // namespace orvelle
