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
    /// Null, or an object with these properties and their change signals: a text `error`, why launching at
    /// login could not be set, empty while nothing is wrong; and a truth value `needsApproval`, whether it
    /// waits for the user, with a function `askForApproval()` that opens the place where the user approves.
    QObject* launchAtLogin = nullptr;
    std::function<void()> quitApp;
};

inline constexpr QSize settingsSize{460, 640};         ///< points
inline constexpr QSize smallestSettingsSize{340, 240}; ///< points; every control stays within reach

/// The settings window with its title, not shown yet. The engine, which `makeEngine` made, and everything in
/// the context must outlive it. Main thread only.
[[nodiscard]] std::unique_ptr<QQuickView> makeSettingsView(QQmlEngine& engine,
                                                           const SettingsContext& context);

/// Registers the QML module `Orvelle.Settings`, once: a static library does not do so by itself.
void registerSettingsTypes();

/// The window that `makeSettingsView` returns.
class SettingsQuickView final : public QQuickView {
    Q_OBJECT

public:
    SettingsQuickView(QQmlEngine& engine, std::function<void()> quitApp)
        : QQuickView(&engine, nullptr)
        , m_quitApp(std::move(quitApp)) {}

    /// Loads the content with the initial properties that were set before.
    void open();

private Q_SLOTS:
    void quitApp() { m_quitApp(); }

private:
    std::function<void()> m_quitApp;
};

} // namespace orvelle
