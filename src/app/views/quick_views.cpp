#include "app/views/quick_views.h"

namespace orvelle {

QuickViews::QuickViews(const ViewContext& context)
    : m_panels({context.monitor, context.settings, context.themes, context.openSettings}) {}

std::unique_ptr<QWindow> QuickViews::makePanel(QStringView key, double cornerRadius) {
    return m_panels.makePanel(key, cornerRadius);
}

std::unique_ptr<QWindow> QuickViews::makeSettings() {
    return nullptr;
}

} // namespace orvelle
