#include "windows/window_factory.h"

namespace orvelle {

WindowFactoryLoader findWindowFactory() {
    return [](const WindowContext& context) {
        return std::unique_ptr<WindowFactory>(orvelleMakeWindowFactory(context));
    };
}

} // namespace orvelle
