#pragma once

#include <QWindow>

#include <AppKit/AppKit.h>

namespace orvelle {

/// The view in which Qt draws the window; the window owns it and creates it now if it has to.
[[nodiscard]] NSView* nativeView(QWindow& window);

} // namespace orvelle
