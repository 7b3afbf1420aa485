#include "app/views/views_module.h"

#include "app/views/quick_views.h"

orvelle::Views* orvelleMakeViews(const orvelle::ViewContext& context) {
    return new orvelle::QuickViews(context);
}
