#include "app/shell/macos/native_view.h"

namespace orvelle {

NSView* nativeView(QWindow& window) { return reinterpret_cast<NSView*>(window.winId()); }

} // namespace orvelle
