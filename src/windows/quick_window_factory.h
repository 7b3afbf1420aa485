#pragma once

#include "windows/panels/panel_factory.h"
#include "windows/settings/settings_factory.h"
#include "windows/window_factory.h"

#include <QQmlEngine>

namespace orvelle {

/// The windows' contents in Qt Quick. One engine serves them all; it is created with the object.
class QuickWindowFactory final : public WindowFactory {
public:
    explicit QuickWindowFactory(const WindowContext& context);

    [[nodiscard]] std::unique_ptr<QWindow> makePanel(ModuleId module, double cornerRadius) override;
    [[nodiscard]] std::unique_ptr<QWindow> makeSettings() override;

private:
    std::unique_ptr<QQmlEngine> m_engine;
    PanelFactory m_panels;
    SettingsContext m_settings;
};

} // namespace orvelle
