#include "shell/macos/hosted_window.h"

namespace orvelle {

NSView* nativeView(QWindow& window) {
    // Qt hands the pointer out as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<NSView*>(window.winId());
}

} // namespace orvelle
