#include "windows/quick_window_factory.h"

namespace orvelle {

std::unique_ptr<WindowFactory> loadWindowFactory(const WindowContext& context) {
    return std::make_unique<QuickWindowFactory>(context);
}

} // namespace orvelle
