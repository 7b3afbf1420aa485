#include "windows/quick_window_factory.h"

#include "windows/common/quick_engine.h"

namespace orvelle {

QuickWindowFactory::QuickWindowFactory(const WindowContext& context)
    : m_engine(makeEngine())
    , m_panels(*m_engine, {context.monitor, context.settings, context.themes, context.openSettings})
    , m_settings{context.settings, context.themes, context.launchAtLogin, context.quitApp} {}

std::unique_ptr<QWindow> QuickWindowFactory::makePanel(ModuleId module, double cornerRadius) {
    return m_panels.makePanel(module, cornerRadius);
}

std::unique_ptr<QWindow> QuickWindowFactory::makeSettings() {
    return makeSettingsView(*m_engine, m_settings);
}

} // namespace orvelle
