#include "windows/window_factory.h"

namespace orvelle {

std::unique_ptr<WindowFactory> loadWindowFactory(const WindowContext& context) {
    return std::unique_ptr<WindowFactory>(orvelleMakeWindowFactory(context));
}

} // namespace orvelle
