#include "probe/bar_line.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

QString className(Severity severity) {
    switch (severity) {
    case Severity::critical:
        return QStringLiteral("critical");
    case Severity::warning:
        return QStringLiteral("warning");
    case Severity::normal:
        break;
    }
    return QStringLiteral("normal");
}

} // namespace

BarLine barLine(const QList<ModuleReport>& modules) {
    BarLine line;
    QStringList texts;
    QStringList details;
    for (const ModuleReport& module : modules) {
        texts.append(module.text);
        details.append(module.details);
        line.severity = std::max(line.severity, module.severity);
        if (!line.percentage && module.fraction)
            line.percentage = static_cast<int>(std::lround(*module.fraction * 100));
    }
    line.text = texts.join(QStringLiteral("  "));
    line.tooltip = details.join(QLatin1Char('\n'));
    return line;
}

QJsonObject jsonFrom(const BarLine& line) {
    QJsonObject object{{QStringLiteral("text"), line.text},
                       {QStringLiteral("full_text"), line.text},
                       {QStringLiteral("tooltip"), line.tooltip},
                       {QStringLiteral("class"), className(line.severity)}};
    if (line.percentage)
        object.insert(QStringLiteral("percentage"), *line.percentage);
    return object;
}

} // namespace orvelle
