#include "parsers.h"
#include "platform/linux/process_clock.h"
#include "platform/linux/process_files.h"
#include "platform/linux/process_table.h"
#include "require.h"

#include <algorithm>

namespace orvelle::fuzz {

using namespace linux_platform;

namespace {

/// More characters than the longest number has.
constexpr std::size_t mostCut = 24;

} // namespace

void fuzzProcessStat(std::string_view text) {
    const std::optional<ProcessStat> stat = parseProcessStat(text);
    if (!stat)
        return;
    requireWithin(text, stat->comm);
    require(!isRunning(*stat) || stat->threadCount > 0, "a process that runs has a task");
    static_cast<void>(isKernelThread(*stat));
    requireShowable(processName({}, stat->comm));
    for (std::size_t missing = 1; missing <= std::min(mostCut, text.size()); ++missing) {
        const std::optional<ProcessStat> cut = parseProcessStat(text.substr(0, text.size() - missing));
        require(!cut || cut->comm != stat->comm || *cut == *stat, "a number that is cut off is not taken");
    }
}

void fuzzExecutablePath(std::string_view text) {
    const std::string name = processName(text, "comm");
    require(!name.empty(), "a process with a short name has a name");
    requireShowable(name);
}

void fuzzNewestPid(std::string_view text) {
    if (const auto pid = parseNewestPid(text))
        require(*pid > 0 && *pid <= largestPid, "a pid is one that the kernel hands out");
}

void fuzzNamespaceStatus(std::string_view text) {
    const bool isFirst = showsOwnNamespace(text, 42);
    const bool isSecond = showsOwnNamespace(text, 43);
    require(!isFirst || !isSecond, "a process has one pid in its own namespace");
}

} // namespace orvelle::fuzz
