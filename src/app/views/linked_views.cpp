#include "app/views/quick_views.h"

namespace orvelle {

std::unique_ptr<Views> loadViews(const ViewContext& context) {
    return std::make_unique<QuickViews>(context);
}

} // namespace orvelle
