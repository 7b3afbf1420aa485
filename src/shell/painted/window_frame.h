#pragma once

#include "settings/settings_storage.h"

#include <QList>
#include <QRect>
#include <QString>

#include <memory>
#include <optional>

/// Where a window stood, as it is remembered and restored. Rectangles are in points of the desktop: the
/// position is that of the window with its title bar, the size is that of its content.
namespace orvelle {

/// "x y width height".
[[nodiscard]] QString frameText(const QRect& frame);

/// Nothing when the text is no frame, or one that no desktop could have had.
[[nodiscard]] std::optional<QRect> parseFrame(const QString& text);

/// Room for the edges that a window manager adds; their size is known only once the window is shown.
inline constexpr QSize decorationRoom{8, 40};

/// The frame as it is where it lies on a screen. Else it is moved and shrunk until it lies, with room for its
/// decoration, on the screen that it overlaps most, or on the first one when it overlaps none; no smaller
/// than `smallest`. `screens` are what the screens offer to windows. As it is where there are no screens.
[[nodiscard]] QRect frameOnScreens(const QRect& frame, const QList<QRect>& screens, const QSize& smallest);

/// A window of `size` in the middle of a screen, no larger than the screen.
[[nodiscard]] QRect centredFrame(const QSize& size, const QRect& screen);

/// What the program remembers of itself between runs: `$XDG_STATE_HOME/orvelle/state.conf`, below
/// `~/.local/state` when the variable is not set to an absolute path.
[[nodiscard]] std::unique_ptr<SettingsStorage> openStateFile();

} // namespace orvelle
