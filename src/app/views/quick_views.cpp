#include "app/views/quick_views.h"

#include "look/quick/quick_engine.h"

namespace orvelle {

QuickViews::QuickViews(const ViewContext& context)
    : m_engine(makeEngine())
    , m_panels(*m_engine, {context.monitor, context.settings, context.themes, context.openSettings})
    , m_settings{context.settings, context.themes, context.launchAtLogin, context.quitApp} {}

std::unique_ptr<QWindow> QuickViews::makePanel(QStringView key, double cornerRadius) {
    return m_panels.makePanel(key, cornerRadius);
}

std::unique_ptr<QWindow> QuickViews::makeSettings() {
    return makeSettingsView(*m_engine, m_settings);
}

} // namespace orvelle
