#pragma once

#include "core/severity.h"
#include "settings/module_table.h"

#include <QStringList>

#include <optional>

namespace orvelle {

class SystemMonitor;

/// What a status bar tells of one module. All texts are Pango markup: names that others chose are escaped.
struct ModuleReport {
    QString text;                     ///< a few characters: "CPU 12%"
    QStringList details{};            ///< lines that begin with the module
    std::optional<double> fraction{}; ///< how full or busy it is, 0 to 1; nothing when it has no measure
    Severity severity = Severity::normal;
};

/// A text as Pango markup that shows it. Characters that no markup may hold become U+FFFD.
[[nodiscard]] QString pangoEscaped(const QString& text);

/// The module at the current values.
[[nodiscard]] ModuleReport moduleReport(ModuleId module, SystemMonitor& monitor);

} // namespace orvelle
