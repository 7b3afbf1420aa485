#include "app/command_line.h"
#include "bytes.h"
#include "parsers.h"
#include "probe/module_lines.h"
#include "probe/probe_arguments.h"
#include "probe/published_values.h"
#include "require.h"
#include "settings/module_table.h"
#include "snapshot/snapshot_arguments.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QXmlStreamReader>

namespace orvelle::fuzz {
namespace {

/// The words of a command line, each of which ends with a null character, as the kernel hands them on.
QStringList wordsIn(std::string_view text, const QString& program) {
    QStringList words(program);
    for (Bytes bytes(text); !bytes.isEmpty();)
        words.append(Bytes::text(bytes.part('\0')));
    return words;
}

/// The tools' versions are those of the application object, which a fuzzer does not have by itself.
void makeApplication() {
    static int count = 1;
    static char name[] = "fuzzer";
    static char* words[] = {name, nullptr};
    static const auto application =
        QCoreApplication::instance() == nullptr ? std::make_unique<QCoreApplication>(count, words) : nullptr;
}

bool isInterval(double seconds) {
    return seconds > 0 && seconds <= 86400;
}

void checkPlan(const SamplingPlan& plan) {
    require(isInterval(plan.stepSeconds), "a step is up to a day long");
    require(plan.cycles >= 1 && plan.cycles <= 1'000'000, "the number of cycles is limited");
}

void checkPlan(const FollowPlan& plan) {
    require(isInterval(plan.intervalSeconds) && plan.intervalSeconds >= 0.1, "lines do not come too fast");
}

} // namespace

void fuzzCommandLine(std::string_view text) {
    const QStringList desktops{QStringLiteral("auto"), QStringLiteral("x11"), QStringLiteral("tray")};
    const CommandLine line = parseCommandLine(wordsIn(text, QStringLiteral("orvelle")), desktops);
    require(line.error.isEmpty() || line.answer.isEmpty(), "the program answers or complains");
    require(line.error.isEmpty() == (!line.answer.isEmpty() || desktops.contains(line.desktop)),
            "without a complaint the desktop is a known one");
    require(!line.error.contains(u'\n'), "a complaint is one line");
    require(line.request.kind != StartRequest::Kind::openPanel ||
                std::ranges::find(moduleTable, line.request.module, &ModuleInfo::key) != moduleTable.end(),
            "only a panel of a module is opened");
}

void fuzzProbeArguments(std::string_view text) {
    makeApplication();
    const ProbeRequest request = parseProbeArguments(wordsIn(text, QStringLiteral("orvelle-probe")));
    if (const auto* sampling = std::get_if<SamplingPlan>(&request))
        checkPlan(*sampling);
    if (const auto* values = std::get_if<ValueLines>(&request))
        checkPlan(values->plan);
    if (const auto* bars = std::get_if<BarLines>(&request))
        checkPlan(bars->plan);
    if (const auto* report = std::get_if<ReportPlan>(&request))
        require(!report->file.isEmpty(), "a report has a file");
}

void fuzzSnapshotArguments(std::string_view text) {
    makeApplication();
    const auto request = parseSnapshotArguments(wordsIn(text, QStringLiteral("orvelle-snapshot")));
    if (const auto* arguments = std::get_if<SnapshotArguments>(&request)) {
        require(arguments->scale >= 1 && arguments->scale <= 4, "a scale is from 1 to 4");
        require(!arguments->directory.isEmpty(), "pictures have a folder");
        require(!arguments->ofExample || arguments->roots.isEmpty(), "there is one machine");
    }
}

/// The first line is the list of wanted values, the rest the values that there are.
void fuzzValuePaths(std::string_view text) {
    Bytes bytes(text);
    const QStringList paths = bytes.line().split(u',');
    const QJsonObject values = QJsonDocument::fromJson(bytes.rest().toUtf8()).object();
    const QString unknown = firstUnknownPath(values, paths);
    require(unknown.isEmpty() || paths.contains(unknown), "an unknown path is one of the wanted");
    require(valuesAt(values, paths).size() <= paths.size(), "there are at most as many values as paths");
}

/// A name within the markup of a status bar.
void fuzzBarTexts(std::string_view text) {
    const QString shown = Bytes::text(text);
    const QString escaped = pangoEscaped(shown);
    QXmlStreamReader reader(QStringLiteral("<a>%1</a>").arg(escaped));
    require(reader.readNextStartElement(), "markup around an escaped text stays markup");
    const QString read = reader.readElementText();
    require(!reader.hasError(), "an escaped text is no markup");
    require(read.size() == shown.size() || shown.contains(QChar::ReplacementCharacter) ||
                read.contains(QChar::ReplacementCharacter),
            "an escaped text reads as before");
}

} // namespace orvelle::fuzz
