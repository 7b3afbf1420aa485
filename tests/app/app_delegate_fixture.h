#pragma once

#include "app/app_delegate.h"
#include "app/recording_status_bar.h"
#include "core/system_monitor.h"
#include "platform/replay/fake_sources.h"
#include "settings/settings_store.h"
#include "support/shown_modules.h"
#include "support/temporary_settings.h"
#include "theme/theme_manager.h"

#include <QWindow>
#include <gtest/gtest.h>

namespace orvelle {

/// Makes empty windows and records their purposes.
class RecordedWindowFactory final : public WindowFactory {
public:
    explicit RecordedWindowFactory(QStringList& calls)
        : m_calls(calls) {}
    [[nodiscard]] std::unique_ptr<QWindow> makePanel(ModuleId module, double cornerRadius) override {
        m_calls.append(QStringLiteral("%1 panel %2").arg(moduleInfo(module).key).arg(cornerRadius));
        return std::make_unique<QWindow>();
    }
    [[nodiscard]] std::unique_ptr<QWindow> makeSettings() override {
        m_calls.append(QStringLiteral("settings"));
        return std::make_unique<QWindow>();
    }

private:
    QStringList& m_calls;
};

class RecordedSettingsWindow final : public SettingsWindow {
public:
    RecordedSettingsWindow(std::unique_ptr<QWindow> content, QStringList& calls)
        : m_content(std::move(content))
        , m_calls(calls) {}
    void bringForward() override { m_calls.append(QStringLiteral("forward")); }

private:
    std::unique_ptr<QWindow> m_content;
    QStringList& m_calls;
};

class AppDelegateTest : public ::testing::Test {
protected:
    void showAll(bool shown) { showEveryModule(settings, shown); }
    static QStringList everyKey() {
        QStringList keys;
        for (const ModuleInfo& module : moduleTable)
            keys.append(module.key);
        return keys;
    }

    TemporarySettings file;
    SettingsStore settings{file.path()};
    ThemeManager themes{settings};
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
    RecordingStatusBar bar;
    /// The delegate's calls to the views and the settings window, in order.
    QStringList windowCalls;
    std::optional<WindowContext> context;
    bool canLoadViews = true;
    AppDelegate delegate{
        monitor,
        settings,
        themes,
        {bar,
         [this](const WindowContext& given) -> std::unique_ptr<WindowFactory> {
             windowCalls.append(QStringLiteral("load"));
             context.emplace(given);
             return canLoadViews ? std::make_unique<RecordedWindowFactory>(windowCalls) : nullptr;
         },
         [this](std::unique_ptr<QWindow> content) {
             return std::make_unique<RecordedSettingsWindow>(std::move(content), windowCalls);
         }}};
};

} // namespace orvelle
