#pragma once

class QScreen;
class QWindow;
struct wl_display;
struct wl_output;
struct wl_surface;

/// What Qt's own connection to the compositor knows of Qt's objects. Main thread only.
namespace orvelle {

/// Null where Qt does not use Wayland.
[[nodiscard]] wl_display* qtDisplay();

/// Null while the window is not shown.
[[nodiscard]] wl_surface* qtSurface(QWindow& window);

/// Null when the compositor has taken the output away.
[[nodiscard]] wl_output* qtOutput(QScreen& screen);

} // namespace orvelle
