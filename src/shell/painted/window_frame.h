#pragma once

#include "settings/settings_storage.h"

#include <QList>
#include <QRect>
#include <QString>

#include <memory>
#include <optional>

/// The frame of a window, as it is remembered and restored. Rectangles are in points of the desktop: the
/// position is that of the window with its title bar, the size is that of its content.
namespace orvelle {

/// "x y width height".
[[nodiscard]] QString frameText(const QRect& frame);

/// Nothing when the text is no frame, or one that no desktop can have.
[[nodiscard]] std::optional<QRect> parseFrame(const QString& text);

/// Room for the edges that a window manager adds; their size is known only once the window is shown.
inline constexpr QSize decorationRoom{8, 40};

/// The frame, unchanged when it lies on a screen or there are no screens. Else it is moved and shrunk, but
/// not below `smallest`, until it lies with its decoration on the screen that it overlaps most, or on the
/// first one when it overlaps none. `screens` are the areas of the screens that windows may cover.
[[nodiscard]] QRect frameOnScreens(const QRect& frame, const QList<QRect>& screens, const QSize& smallest);

/// A window of `size` in the middle of a screen, no larger than the screen.
[[nodiscard]] QRect centredFrame(const QSize& size, const QRect& screen);

/// The state that the program keeps between runs: `$XDG_STATE_HOME/orvelle/state.conf`, below
/// `~/.local/state` when the variable is not an absolute path.
[[nodiscard]] std::unique_ptr<SettingsStorage> openStateFile();

} // namespace orvelle
