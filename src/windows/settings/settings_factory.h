#pragma once

#include <QQuickView>

#include <functional>
#include <memory>

class QQmlEngine;

namespace orvelle {

class SettingsStore;
class ThemeManager;

/// What the settings window shows and changes.
struct SettingsContext {
    SettingsStore& settings;
    ThemeManager& themes;
    /// Null, or an object with a text property `error` with a signal of its changes: why the program could
    /// not be made to start at login, empty while nothing is wrong.
    QObject* launchAtLogin = nullptr;
    std::function<void()> quitApp;
};

inline constexpr QSize settingsSize{460, 640};         ///< points
inline constexpr QSize smallestSettingsSize{340, 240}; ///< points; everything can be reached in it

/// The settings in a window, not shown yet, with its title. The engine, one of `makeEngine`, and what the
/// context names must outlive it. Main thread only.
[[nodiscard]] std::unique_ptr<QQuickView> makeSettingsView(QQmlEngine& engine,
                                                           const SettingsContext& context);

} // namespace orvelle
