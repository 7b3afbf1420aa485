#include "probe/probe_arguments.h"

#include <QCommandLineParser>

#include <cmath>

namespace orvelle {
namespace {

constexpr double maximumStepSeconds = 86400;
constexpr int maximumCycles = 1'000'000;

const QString usage = QStringLiteral("usage: orvelle-probe [--root DIR]... [--step SECONDS] [--cycles N]\n"
                                     "       orvelle-probe --modules");

UsageError usageError(const QString& reason) {
    return {reason + QLatin1Char('\n') + usage};
}

} // namespace

std::variant<SamplingPlan, ModuleListing, UsageError> parseProbeArguments(const QStringList& commandLine) {
    const QCommandLineOption root(QStringLiteral("root"), {}, QStringLiteral("DIR"));
    const QCommandLineOption step(QStringLiteral("step"), {}, QStringLiteral("SECONDS"), QStringLiteral("3"));
    const QCommandLineOption cycles(QStringLiteral("cycles"), {}, QStringLiteral("N"), QStringLiteral("2"));
    const QCommandLineOption modules(QStringLiteral("modules"));
    QCommandLineParser parser;
    parser.addOptions({root, step, cycles, modules});
    if (!parser.parse(commandLine))
        return usageError(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return usageError(
            QStringLiteral("Unexpected argument \"%1\"").arg(parser.positionalArguments().first()));

    if (parser.isSet(modules)) {
        if (parser.optionNames().size() > 1)
            return usageError(QStringLiteral("--modules goes with no other option"));
        return ModuleListing();
    }

    SamplingPlan plan{.roots = parser.values(root)};
    bool isNumber = false;
    plan.stepSeconds = parser.value(step).toDouble(&isNumber);
    if (!isNumber || !(plan.stepSeconds > 0) || plan.stepSeconds > maximumStepSeconds)
        return usageError(
            QStringLiteral("--step takes seconds above 0 and up to %1").arg(maximumStepSeconds));
    plan.cycles = parser.value(cycles).toInt(&isNumber);
    if (!isNumber || plan.cycles < 1 || plan.cycles > maximumCycles)
        return usageError(QStringLiteral("--cycles takes a number from 1 to %1").arg(maximumCycles));
    if (parser.isSet(cycles) && !plan.roots.isEmpty())
        return usageError(QStringLiteral("--cycles does not go with --root: each root is one cycle"));
    return plan;
}

} // namespace orvelle
