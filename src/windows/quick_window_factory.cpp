#include "windows/common/quick_engine.h"
#include "windows/panels/panel_factory.h"
#include "windows/settings/settings_window.h"
#include "windows/window_factory.h"

#include <QQmlEngine>

namespace orvelle {
namespace {

/// One engine serves all windows; it is created with the factory.
class QuickWindowFactory final : public WindowFactory {
public:
    explicit QuickWindowFactory(const WindowContext& context)
        : m_engine(makeEngine())
        , m_panels(*m_engine, {context.monitor, context.settings, context.themes, context.openSettings})
        , m_settings{context.settings, context.themes, context.launchAtLogin, context.quitApp} {}

    [[nodiscard]] std::unique_ptr<QWindow> makePanel(ModuleId module, double cornerRadius) override {
        return m_panels.makePanel(module, cornerRadius);
    }
    [[nodiscard]] std::unique_ptr<QWindow> makeSettings() override {
        return makeSettingsView(*m_engine, m_settings);
    }

private:
    std::unique_ptr<QQmlEngine> m_engine;
    PanelFactory m_panels;
    SettingsContext m_settings;
};

} // namespace
} // namespace orvelle

orvelle::WindowFactory* orvelleMakeWindowFactory(const orvelle::WindowContext& context) {
    return new orvelle::QuickWindowFactory(context);
}
