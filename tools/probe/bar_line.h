#pragma once

#include "probe/module_lines.h"

#include <QJsonObject>

namespace orvelle {

/// What a status bar shows of several modules at one moment.
struct BarLine {
    QString text{};    ///< from left to right, Pango markup
    QString tooltip{}; ///< several lines, Pango markup
    std::optional<int> percentage{};
    Severity severity = Severity::normal;
};

/// The modules in one line. The percentage is that of the first one that has any, the severity the worst.
[[nodiscard]] BarLine barLine(const QList<ModuleReport>& modules);

/// The fields that Waybar reads (`text`, `tooltip`, `class`, `percentage`) and that of i3blocks
/// (`full_text`). The class is "normal", "warning" or "critical".
[[nodiscard]] QJsonObject jsonFrom(const BarLine& line);

} // namespace orvelle
