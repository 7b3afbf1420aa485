#include "probe/probe_arguments.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double maximumSeconds = 86400;
constexpr double minimumIntervalSeconds = 0.1;
constexpr int maximumCycles = 1'000'000;

/// Every option. The help is made of their descriptions.
struct ProbeOptions {
    const QCommandLineOption root{
        QStringLiteral("root"),
        QStringLiteral(
            "Read a recorded machine below DIR instead of this one. Given several times, each DIR is "
            "the machine at the next sample."),
        QStringLiteral("DIR")};
    const QCommandLineOption step{QStringLiteral("step"),
                                  QStringLiteral("Time between two samples, 3 seconds unless given."),
                                  QStringLiteral("SECONDS"), QStringLiteral("3")};
    const QCommandLineOption cycles{
        QStringLiteral("cycles"),
        QStringLiteral("Number of samples of this machine, 2 unless given. Processes "
                       "are sampled in every third one."),
        QStringLiteral("N"), QStringLiteral("2")};
    const QCommandLineOption modules{QStringLiteral("modules"), QStringLiteral("List the modules and end.")};
    const QCommandLineOption follow{
        QStringLiteral("follow"),
        QStringLiteral("Print a line of JSON for each sample until nobody reads them any more.")};
    const QCommandLineOption waybar{
        QStringLiteral("waybar"),
        QStringLiteral("Likewise, but print the JSON that status bars such as Waybar and i3blocks take.")};
    const QCommandLineOption plain{
        QStringLiteral("plain"),
        QStringLiteral("Likewise, but print plain text for status bars such as polybar.")};
    const QCommandLineOption report{
        QStringLiteral("report"),
        QStringLiteral(
            "Write a file to attach to a bug report: the values and what they were read from, without names "
            "of processes, users, machines, volumes and without addresses.")};
    const QCommandLineOption interval{
        QStringLiteral("interval"),
        QStringLiteral("Time between two lines, 3 seconds unless given, at least 0.1."),
        QStringLiteral("SECONDS"), QStringLiteral("3")};
    const QCommandLineOption fields{
        QStringLiteral("fields"),
        QStringLiteral(
            "What the lines tell: values such as cpu.totalUsage,memory.info.used with --follow, modules "
            "such as cpu,memory with --waybar and --plain."),
        QStringLiteral("LIST")};
};

UsageError usageError(const QString& reason) {
    return {reason};
}

QString optionText(const QCommandLineOption& option) {
    return QStringLiteral("--") + option.names().constFirst();
}

/// The options that choose what the program does; without any it prints the values once.
QList<const QCommandLineOption*> modesOf(const ProbeOptions& options) {
    return {&options.modules, &options.report, &options.follow, &options.waybar, &options.plain};
}

/// Whether the option has a meaning together with this mode; null stands for printing once.
bool isMeaningful(const QCommandLineOption& option, const QCommandLineOption* mode,
                  const ProbeOptions& options) {
    if (&option == &options.root)
        return mode != &options.modules;
    const bool isForOnce = &option == &options.step || &option == &options.cycles;
    const bool isFollowing = mode == &options.follow || mode == &options.waybar || mode == &options.plain;
    return isForOnce ? mode == nullptr : isFollowing;
}

/// The mode of a command line in which every option has a meaning.
std::variant<const QCommandLineOption*, UsageError> modeOf(const QCommandLineParser& parser,
                                                           const ProbeOptions& options) {
    const QCommandLineOption* mode = nullptr;
    for (const QCommandLineOption* candidate : modesOf(options)) {
        if (!parser.isSet(*candidate))
            continue;
        if (mode != nullptr)
            return usageError(
                QStringLiteral("%1 does not go with %2").arg(optionText(*mode), optionText(*candidate)));
        mode = candidate;
    }
    for (const QCommandLineOption* option :
         {&options.root, &options.step, &options.cycles, &options.interval, &options.fields}) {
        if (!parser.isSet(*option) || isMeaningful(*option, mode, options))
            continue;
        if (mode == nullptr)
            return usageError(
                QStringLiteral("%1 goes with --follow, --waybar or --plain").arg(optionText(*option)));
        return usageError(
            QStringLiteral("%1 does not go with %2").arg(optionText(*option), optionText(*mode)));
    }
    return mode;
}

/// The option's number of seconds; nothing when it has none in this range.
std::optional<double> secondsIn(const QString& text, double minimum) {
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    const bool isInRange = seconds > 0 && seconds >= minimum && seconds <= maximumSeconds;
    return isNumber && isInRange ? std::optional(seconds) : std::nullopt;
}

ProbeRequest samplingPlan(const QCommandLineParser& parser, const ProbeOptions& options) {
    SamplingPlan plan{.roots = parser.values(options.root)};
    const std::optional<double> step = secondsIn(parser.value(options.step), 0);
    if (!step)
        return usageError(QStringLiteral("--step takes seconds above 0 and up to %1").arg(maximumSeconds));
    plan.stepSeconds = *step;
    bool isNumber = false;
    plan.cycles = parser.value(options.cycles).toInt(&isNumber);
    if (!isNumber || plan.cycles < 1 || plan.cycles > maximumCycles)
        return usageError(QStringLiteral("--cycles takes a number from 1 to %1").arg(maximumCycles));
    if (parser.isSet(options.cycles) && !plan.roots.isEmpty())
        return usageError(QStringLiteral("--cycles does not go with --root: each root is one cycle"));
    return plan;
}

std::variant<QList<ModuleId>, UsageError> modulesNamed(const QStringList& keys) {
    QList<ModuleId> modules;
    for (const QString& key : keys) {
        const auto* const module = std::ranges::find(moduleTable, key, &ModuleInfo::key);
        if (module == moduleTable.end())
            return usageError(QStringLiteral("No module is called \"%1\", see --modules").arg(key));
        modules.append(module->id);
    }
    return modules;
}

ProbeRequest lines(const QCommandLineParser& parser, const ProbeOptions& options) {
    const std::optional<double> interval = secondsIn(parser.value(options.interval), minimumIntervalSeconds);
    if (!interval)
        return usageError(QStringLiteral("--interval takes seconds from %1 to %2")
                              .arg(minimumIntervalSeconds)
                              .arg(maximumSeconds));
    const FollowPlan plan{.roots = parser.values(options.root), .intervalSeconds = *interval};
    const QStringList fields = parser.value(options.fields).split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (parser.isSet(options.fields) && fields.isEmpty())
        return usageError(QStringLiteral("--fields takes names with commas between them"));
    if (parser.isSet(options.follow))
        return ValueLines{.plan = plan, .fields = fields};
    BarLines bar{.plan = plan, .modules = std::nullopt, .isPlain = parser.isSet(options.plain)};
    const auto modules = modulesNamed(fields);
    if (const auto* error = std::get_if<UsageError>(&modules))
        return *error;
    if (!fields.isEmpty())
        bar.modules = std::get<QList<ModuleId>>(modules);
    return bar;
}

} // namespace

ProbeRequest parseProbeArguments(const QStringList& commandLine) {
    const ProbeOptions options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints what Orvelle measures, as one JSON object unless an option says otherwise."));
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("Of --report; orvelle-report.json unless given."),
                                 QStringLiteral("[FILE]"));
    parser.addOptions({options.root, options.step, options.cycles, options.follow, options.waybar,
                       options.plain, options.interval, options.fields, options.modules, options.report});
    addUsualOptions(parser);
    if (!parser.parse(commandLine))
        return usageError(parser.errorText());
    if (auto answer = usualAnswer(parser, QStringLiteral("orvelle-probe")))
        return *std::move(answer);
    const QStringList others = parser.positionalArguments();
    const qsizetype allowed = parser.isSet(options.report) ? 1 : 0;
    if (others.size() > allowed)
        return usageError(QStringLiteral("Unexpected argument \"%1\"").arg(others.at(allowed)));
    const auto mode = modeOf(parser, options);
    if (const auto* error = std::get_if<UsageError>(&mode))
        return *error;
    const QCommandLineOption* const chosen = std::get<const QCommandLineOption*>(mode);
    if (chosen == nullptr)
        return samplingPlan(parser, options);
    if (chosen == &options.modules)
        return ModuleListing();
    if (chosen == &options.report && !others.isEmpty() && others.first().isEmpty())
        return usageError(QStringLiteral("--report takes the name of a file"));
    if (chosen == &options.report)
        return ReportPlan{.roots = parser.values(options.root),
                          .file = others.isEmpty() ? QStringLiteral("orvelle-report.json") : others.first()};
    return lines(parser, options);
}

} // namespace orvelle
