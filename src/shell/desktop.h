#pragma once

#include "shell/login_item.h"
#include "shell/settings_window.h"
#include "shell/single_instance.h"
#include "shell/status_bar.h"

#include <QWindow>

#include <optional>

/// What each desktop's folder defines once; the build decides which one is linked.
namespace orvelle {

class AnimationClock;

/// Chooses how the program talks to its desktop. Called once, before the application object exists, because
/// the choice cannot change afterwards. Returns why no desktop can be reached, nothing when one can.
[[nodiscard]] std::optional<QString> prepareDesktop();

/// Makes this process the only one of the program on its desktop. Null when another one is, which has then
/// been told. Needs the application object.
[[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance();

/// The bar of this desktop, empty and not yet shown. Needs the application object.
[[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar();

/// The settings window, not shown yet, around a content that has not been shown.
[[nodiscard]] std::unique_ptr<SettingsWindow> makeSettingsWindow(std::unique_ptr<QWindow> content);

/// Keeps `motion` as much reduced as the user wants it on this desktop, now and whenever that changes, as
/// long as the result lives. Null where the desktop cannot say. Needs the application object.
[[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock);

/// Keeps the fonts of theme/fonts.h those that the desktop announces, now and whenever that changes, as long
/// as the result lives. Null where the desktop announces none beside what Qt knows. Needs the application
/// object.
[[nodiscard]] std::unique_ptr<QObject> followDesktopFonts();

/// The login item of this program for the present user.
[[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem();

} // namespace orvelle
