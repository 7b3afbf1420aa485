#include "shell/macos/macos_desktop.h"

#include "theme/fonts.h"

namespace orvelle {
namespace {

class MacosDesktop final : public Desktop {
  public:
    [[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance(const StartRequest& request) override {
        return becomeSingleMacosInstance(request);
    }
    [[nodiscard]] bool isRunningElsewhere() const override { return isRunningElsewhereOnMacos(); }
    [[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar() override {
        return makeMacosStatusBar(m_activation);
    }
    [[nodiscard]] std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> content) override {
        return makeMacosSettingsWindow(std::move(content), m_activation);
    }
    [[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) override {
        return followReducedMacosMotion(clock);
    }
    /// The system has one font, in designs that never change.
    [[nodiscard]] std::unique_ptr<QObject> followFonts() override {
        useSystemFontDesigns();
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem() override { return makeMacosLoginItem(); }

  private:
    ProgramActivation m_activation;
};

} // namespace

QStringList desktopNames() { return {QStringLiteral("auto")}; }

/// A program is only ever started on a desktop that is there, and there is only one kind.
DesktopChoice chooseDesktop(const QString& /*name*/) {
    // Else Qt activates the process as soon as it runs, and so takes the keyboard from the program that has
    // it, at every login.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    return {[](SettingsStore& /*settings*/) { return std::make_unique<MacosDesktop>(); }, {}};
}

} // namespace orvelle
