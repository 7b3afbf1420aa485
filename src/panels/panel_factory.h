#pragma once

#include <QQuickView>

#include <functional>
#include <memory>

class QQmlEngine;

namespace orvelle {

class SettingsStore;
class SystemMonitor;
class ThemeManager;

/// What the panels show, and what their settings button does.
struct PanelContext {
    SystemMonitor& monitor;
    SettingsStore& settings;
    ThemeManager& themes;
    std::function<void()> openSettings;
};

/// Makes the panels of the modules. QML and its engine are not touched before the first one. The factory must
/// outlive its panels. Main thread only.
class PanelFactory {
public:
    /// Width and height of every panel, points.
    static constexpr QSize panelSize{320, 500};

    explicit PanelFactory(PanelContext context);
    ~PanelFactory();
    PanelFactory(const PanelFactory&) = delete;
    PanelFactory& operator=(const PanelFactory&) = delete;

    /// The panel of the module with this key in a window of its own, not shown yet, with its corners rounded
    /// by so many points; null for a key that no module has.
    [[nodiscard]] std::unique_ptr<QQuickView> makePanel(QStringView key, double cornerRadius = 0);

private:
    [[nodiscard]] QQmlEngine& engine();

    PanelContext m_context;
    std::unique_ptr<QQmlEngine> m_engine;
};

} // namespace orvelle
