#pragma once

#include "shell/painted/accessible_bar.h"
#include "shell/wayland/press_catcher.h"
#include "shell/wayland/retry_delay.h"
#include "shell/wayland/strip_surface.h"
#include "shell/wayland/wayland_connection.h"
#include "shell/wayland/wayland_seat.h"

#include <QElapsedTimer>
#include <QTimer>

namespace orvelle {

/// The bar on a Wayland compositor with a layer shell, on a connection of its own, while it has items: at the
/// top of the screen that the compositor announced first. It follows screens that come and go, and appears
/// again when the compositor closes it. Main thread only.
///
/// A compositor does not tell where a strip is on its screen. Its place counts as the screen's upper edge,
/// also where the panel of another program is above it.
class WaylandStrip final : public QObject {
    Q_OBJECT

public:
    explicit WaylandStrip(std::unique_ptr<WaylandConnection> connection);
    ~WaylandStrip() override;

    [[nodiscard]] Bar& bar() { return m_window.bar(); }
    /// What assistive programs see of the bar: a window of Qt that has never been shown.
    [[nodiscard]] AccessibleBar& window() { return m_window; }
    /// For a popover that closes when the user presses something else. The strip must outlive it.
    [[nodiscard]] std::unique_ptr<PressCatcher> catchPresses() const;

Q_SIGNALS:
    /// The items have been painted for the first time since the program started.
    void firstPainted();
    /// The compositor has ended or has refused a request; the strip does not come back.
    void lost(const QString& reason);

private:
    [[nodiscard]] BarPlace place() const;
    /// Takes effect in the next turn of the event loop, so that a bar that is emptied and filled at once does
    /// not flicker.
    void updateSoon();
    void update();
    [[nodiscard]] const WaylandOutput* wantedOutput() const;
    void showOn(const WaylandOutput& output);
    void hide();
    void handleClosed();
    void handleRemoval(const WaylandOutput& output);

    std::unique_ptr<WaylandConnection> m_connection;
    WaylandGlobals m_globals;
    WaylandOutputs m_outputs;
    ArrowCursor m_cursor;
    WaylandSeats m_seats;
    std::unique_ptr<StripSurface> m_surface; ///< null while the bar is not shown
    std::unique_ptr<StripSurface> m_closed;  ///< what the compositor has closed, until the event is handled
    AccessibleBar m_window;
    const WaylandOutput* m_refusing =
        nullptr; ///< where the compositor has closed the strip; null for nowhere
    RetryDelay m_retryDelay;
    QElapsedTimer m_life; ///< of the present strip
    QTimer m_timer;
    bool m_wasPainted = false;
};

} // namespace orvelle
