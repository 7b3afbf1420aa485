#pragma once

#include "shell/desktop.h"
#include "shell/macos/program_activation.h"

/// The parts of the desktop of macOS, each in the file of its name; see the functions of `Desktop`.
namespace orvelle {

[[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleMacosInstance(const StartRequest& request = {});
[[nodiscard]] bool isRunningElsewhereOnMacos();
[[nodiscard]] std::unique_ptr<StatusBar> makeMacosStatusBar(ProgramActivation& activation);
[[nodiscard]] std::unique_ptr<SettingsWindow> makeMacosSettingsWindow(std::unique_ptr<QWindow> content,
                                                                      ProgramActivation& activation);
[[nodiscard]] std::unique_ptr<QObject> followReducedMacosMotion(AnimationClock& clock);
[[nodiscard]] std::unique_ptr<LoginItem> makeMacosLoginItem();

} // namespace orvelle
