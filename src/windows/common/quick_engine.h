#pragma once

#include <memory>

class QQmlEngine;

namespace orvelle {

/// An engine for the program's windows. It knows `Orvelle.Common`; whoever shows another module registers
/// that one. From the first call on all windows of Qt Quick are painted in software: no graphics processor is
/// woken for a few charts, and no driver loaded. Called before the first such window, on the main thread.
[[nodiscard]] std::unique_ptr<QQmlEngine> makeEngine();

} // namespace orvelle
