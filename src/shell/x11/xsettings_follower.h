#pragma once

#include <QObject>

#include <memory>

/// The settings that GNOME, Xfce and KDE publish on an X server, see xsettings.h. Each function follows some
/// of them, now and after every change, as long as its result lives. Null off X11.
namespace orvelle {

class AnimationClock;

/// Keeps the clock's motion reduced while `Gtk/EnableAnimations` is 0.
[[nodiscard]] std::unique_ptr<QObject> followXSettingsMotion(AnimationClock& clock);

/// Keeps the fonts of theme/fonts.h equal to `Gtk/FontName` and `Gtk/MonospaceFontName`.
[[nodiscard]] std::unique_ptr<QObject> followXSettingsFonts();

} // namespace orvelle
