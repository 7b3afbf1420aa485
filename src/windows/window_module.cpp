#include "windows/window_module.h"

#include "windows/quick_window_factory.h"

orvelle::WindowFactory* orvelleMakeWindowFactory(const orvelle::WindowContext& context) {
    return new orvelle::QuickWindowFactory(context);
}
