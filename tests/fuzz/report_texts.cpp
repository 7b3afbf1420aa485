#include "bytes.h"
#include "parsers.h"
#include "platform/linux/linux_disk_source.h"
#include "platform/linux/proc_net.h"
#include "platform/linux/process_files.h"
#include "probe/report/linux_texts.h"
#include "probe/report/pseudonyms.h"
#include "probe/report/surroundings.h"
#include "require.h"

#include <algorithm>
#include <array>

namespace orvelle::fuzz {
namespace {

using namespace linux_platform;

/// A report is plain text, whatever the names on a machine are.
void requirePlain(std::string_view text) {
    require(std::ranges::all_of(
                text, [](char byte) { return (byte >= ' ' && byte <= '~') || byte == '\t' || byte == '\n'; }),
            "a report is plain text");
}

void checkDisks(std::string_view text) {
    Pseudonyms pseudonyms;
    const std::string told = diskstatsText(text, pseudonyms);
    requirePlain(told);
    require(parseDiskstats(told).size() <= parseDiskstats(text).size(), "a report tells of no further disk");
}

void checkInterfaces(std::string_view text) {
    Pseudonyms pseudonyms;
    const std::string told = netDevText(text, pseudonyms);
    requirePlain(told);
    require(parseNetDev(told).size() <= parseNetDev(text).size(), "a report tells of no further interface");
}

void checkRoutes(std::string_view text) {
    Pseudonyms pseudonyms;
    const std::string told = routeText(text, pseudonyms);
    requirePlain(told);
    require(parseDefaultRoutes(told).size() <= parseDefaultRoutes(text).size(),
            "a report tells of no further route");
}

void checkMounts(std::string_view text) {
    Pseudonyms pseudonyms;
    const std::vector<Mount> mounts = parseMountinfo(text);
    const std::string told = mountinfoText(mounts, pseudonyms);
    requirePlain(told);
    require(parseMountinfo(told).size() <= mounts.size(), "a report tells of no further mount");
}

void checkHiddenMounts(std::string_view text) {
    Pseudonyms pseudonyms;
    const std::string told = fstabText(text, pseudonyms);
    requirePlain(told);
    require(hiddenPathsInFstab(told).size() <= hiddenPathsInFstab(text).size(),
            "a report tells of no further hidden path");
}

void checkProcess(std::string_view text) {
    const std::optional<ProcessStat> before = parseProcessStat(text);
    const std::optional<std::string> told = processStatText(text, 42, "process-1");
    require(before || !told, "only a process that can be read is told of");
    if (!told)
        return;
    requirePlain(*told);
    std::optional<ProcessStat> after = parseProcessStat(*told);
    require(after.has_value(), "what a report tells can be read");
    after->comm = before->comm;
    require(after == before, "a process reads as before");
}

void checkNumbers(std::string_view text) {
    requirePlain(numbersOnly(text));
    requirePlain(ueventText(text));
}

} // namespace

/// The first byte says which of the texts follows.
void fuzzReportTexts(std::string_view text) {
    constexpr std::array checks{checkDisks,   checkInterfaces,   checkRoutes, checkMounts,
                                checkProcess, checkHiddenMounts, checkNumbers};
    if (!text.empty())
        checks.at(static_cast<unsigned char>(text.front()) % checks.size())(text.substr(1));
}

/// Names of all kinds, each in a line of its own.
void fuzzPseudonyms(std::string_view text) {
    Pseudonyms pseudonyms;
    for (Bytes bytes(text); !bytes.isEmpty();) {
        const std::string_view name = bytes.part('\n');
        for (const auto pseudonym :
             {&Pseudonyms::process, &Pseudonyms::interface, &Pseudonyms::device, &Pseudonyms::powerSupply,
              &Pseudonyms::place, &Pseudonyms::path, &Pseudonyms::address}) {
            const std::string told = (pseudonyms.*pseudonym)(name);
            requirePlain(told);
            require((pseudonyms.*pseudonym)(name) == told, "a name has one pseudonym");
        }
        require(pseudonyms.deviceFolder(name) == pseudonyms.deviceFolder(name), "a name has one pseudonym");
    }
}

void fuzzHarmlessWord(std::string_view text) {
    requirePlain(harmlessWord(Bytes::text(text)).toStdString());
    require(!harmlessWord(Bytes::text(text)).contains(u'\n'), "a word is on one line");
}

} // namespace orvelle::fuzz
