#pragma once

#include "shell/desktop.h"
#include "shell/tray/tray_panels.h"

namespace orvelle {

/// Makes a popup of the tabs that any desktop shows which lets a program place its windows.
[[nodiscard]] std::unique_ptr<Popup> makePassivePopup(QWindow& window);

/// A desktop whose tray holds the items. Everything else is made by another one.
class TrayDesktop final : public Desktop {
public:
    /// `windows` is how the tray's windows get on the screen of `other`. The settings must outlive the
    /// object.
    TrayDesktop(const SettingsStore& settings, std::unique_ptr<Desktop> other, TrayWindows windows);

    [[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar() override;
    [[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance(const StartRequest& request) override {
        return m_other->becomeSingleInstance(request);
    }
    [[nodiscard]] bool isRunningElsewhere() const override { return m_other->isRunningElsewhere(); }
    [[nodiscard]] std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> content) override {
        return m_other->makeSettingsWindow(std::move(content));
    }
    [[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) override {
        return m_other->followReducedMotion(clock);
    }
    [[nodiscard]] std::unique_ptr<QObject> followFonts() override { return m_other->followFonts(); }
    [[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem() override { return m_other->makeLoginItem(); }

private:
    const SettingsStore& m_settings;
    std::unique_ptr<Desktop> m_other;
    TrayWindows m_windows;
};

} // namespace orvelle
