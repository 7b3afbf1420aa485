#pragma once

#include "settings/module_table.h"

#include <QQuickView>

#include <functional>
#include <memory>

class QQmlComponent;
class QQmlEngine;
class QQuickItem;

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

    /// The module's panel in a window of its own, not shown yet. Its corners have this radius in points.
    /// Null, with the reason on the program's standard error, when its view cannot be loaded.
    [[nodiscard]] std::unique_ptr<QQuickView> makePanel(ModuleId module, double cornerRadius = 0);

private:
    /// A panel with the monitors that it asks for, owned by the caller; null when it cannot be created.
    [[nodiscard]] QQuickItem* createPanel(QQmlComponent& component) const;

    QQmlEngine& m_engine;
    PanelContext m_context;
};

} // namespace orvelle
