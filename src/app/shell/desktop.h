#pragma once

#include "app/shell/status_bar.h"

#include <optional>

/// What each desktop's folder defines once; the build decides which one is linked.
namespace orvelle {

/// Chooses how the program talks to its desktop. Called once, before the application object exists, because
/// the choice cannot change afterwards. Returns why no desktop can be reached, nothing when one can.
[[nodiscard]] std::optional<QString> prepareDesktop();

/// Whether this process is from now on the only one of the program on its desktop, until it ends; false when
/// another one is. Needs the application object.
[[nodiscard]] bool becomeOnlyInstance();

/// The bar of this desktop, empty and not yet shown. Needs the application object.
[[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar();

} // namespace orvelle
