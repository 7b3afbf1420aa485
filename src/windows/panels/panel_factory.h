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

/// Makes the panels of the modules. The engine, one of `makeEngine`, and what the context names must outlive
/// them. Main thread only.
class PanelFactory {
public:
    /// Width and height of every panel, points.
    static constexpr QSize panelSize{320, 500};

    PanelFactory(QQmlEngine& engine, PanelContext context);

    /// The panel of the module with this key in a window of its own, not shown yet, with its corners rounded
    /// by so many points; null for a key that no module has.
    [[nodiscard]] std::unique_ptr<QQuickView> makePanel(QStringView key, double cornerRadius = 0);

private:
    QQmlEngine& m_engine;
    PanelContext m_context;
};

} // namespace orvelle
