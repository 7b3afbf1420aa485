#include "probe/report/linux_texts.h"

#include "platform/linux/files.h"
#include "platform/linux/proc_net.h"
#include "platform/linux/process_files.h"
#include "platform/linux/text.h"
#include "probe/report/pseudonyms.h"

#include <QRegularExpression>
#include <fmt/format.h>

#include <algorithm>

namespace orvelle {
namespace {

using namespace linux_platform;

bool isNumbers(std::string_view text) {
    return text.find_first_not_of("0123456789-+. \t") == std::string_view::npos;
}

bool isPlainWord(std::string_view word) {
    return !word.empty() && std::ranges::all_of(word, [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
               (character >= '0' && character <= '9') || character == '_' || character == '-' ||
               character == '.';
    });
}

/// Each line that `rewrite` keeps, rewritten.
template <class Rewrite>
std::string rewrittenLines(std::string_view text, Rewrite rewrite) {
    std::string result;
    while (!text.empty()) {
        const std::optional<std::string> line = rewrite(takeLine(text));
        if (line)
            result.append(*line).append("\n");
    }
    return result;
}

bool hidesMount(std::string_view options) {
    while (!options.empty()) {
        if (takeUntil(options, ',') == "x-gvfs-hide")
            return true;
    }
    return false;
}

} // namespace

std::string numbersOnly(std::string_view text) {
    // "cpu0 1 2 3", "Active(anon): 12 kB", "c_min 4 123", "0.52 0.50 0.40 1/234 5678"
    static const QRegularExpression harmless(QRegularExpression::anchoredPattern(
        QStringLiteral("((cpu[0-9]*|btime|[A-Z][A-Za-z0-9_]*(\\([a-z]+\\))?:|c_min|size)[ \t]+)?"
                       "[0-9./ \t-]*( kB)?")));
    return rewrittenLines(text, [](std::string_view line) -> std::optional<std::string> {
        const QString whole = QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
        return harmless.match(whole).hasMatch() ? std::optional<std::string>(line) : std::nullopt;
    });
}

std::string diskstatsText(std::string_view text, Pseudonyms& pseudonyms) {
    return rewrittenLines(text, [&](std::string_view line) -> std::optional<std::string> {
        const std::string_view major = takeWord(line);
        const std::string_view minor = takeWord(line);
        const std::string_view name = takeWord(line);
        if (!isDigits(major) || !isDigits(minor) || !isEntryName(name) || !isNumbers(line))
            return std::nullopt;
        return fmt::format("{:>4} {:>7} {}{}", major, minor, pseudonyms.device(name), line);
    });
}

std::string netDevText(std::string_view text, Pseudonyms& pseudonyms) {
    constexpr std::string_view heading =
        "Inter-|   Receive                                                |  Transmit\n"
        " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop fifo "
        "colls "
        "carrier compressed\n";
    return std::string(heading) +
           rewrittenLines(text, [&](std::string_view line) -> std::optional<std::string> {
               const std::size_t colon = line.rfind(':');
               const std::string_view name = trimmed(line.substr(0, colon));
               if (colon == std::string_view::npos || !isInterfaceName(name) ||
                   !isNumbers(line.substr(colon + 1)))
                   return std::nullopt;
               return fmt::format("{:>6}:{}", pseudonyms.interface(name), line.substr(colon + 1));
           });
}

std::string routeText(std::string_view text, Pseudonyms& pseudonyms) {
    constexpr std::string_view heading =
        "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
    return std::string(heading) +
           rewrittenLines(text, [&](std::string_view line) -> std::optional<std::string> {
               const std::string_view name = takeWord(line);
               const std::string_view destination = takeWord(line);
               takeWord(line); // gateway
               const auto flags = parseHexadecimal(takeWord(line));
               takeWord(line); // reference count
               takeWord(line); // use
               const auto metric = takeNumber<std::int64_t>(line);
               const std::string_view mask = takeWord(line);
               if (destination != "00000000" || mask != "00000000" || !flags || !metric)
                   return std::nullopt;
               return fmt::format("{}\t{}\t00000000\t{:04X}\t0\t0\t{}\t{}\t0\t0\t0",
                                  pseudonyms.interface(name), destination, *flags, *metric, mask);
           });
}

std::string mountSource(const Mount& mount, Pseudonyms& pseudonyms) {
    if (mount.source.empty() || mount.source == mount.fileSystem)
        return isPlainWord(mount.source) ? mount.source : "none";
    const std::string_view source = mount.source;
    const std::size_t slash = source.rfind('/');
    if (!source.starts_with("/dev/"))
        return pseudonyms.path(source);
    // The last component may be a device itself or a name in /dev/mapper.
    const std::string_view last = source.substr(slash + 1);
    const bool isDevice = pseudonyms.device(last) == last;
    return pseudonyms.path(source.substr(0, slash)) + "/" +
           (isDevice ? std::string(last) : pseudonyms.place(last));
}

std::string mountinfoText(const std::vector<Mount>& mounts, Pseudonyms& pseudonyms) {
    std::string text;
    for (const Mount& mount : mounts) {
        if (!isPlainWord(mount.fileSystem))
            continue;
        text += fmt::format("{} {} {}:{} {} {} rw - {} {} rw\n", mount.id, mount.parentId, mount.deviceMajor,
                            mount.deviceMinor, pseudonyms.path(mount.root), pseudonyms.path(mount.path),
                            mount.fileSystem, mountSource(mount, pseudonyms));
    }
    return text;
}

std::string fstabText(std::string_view text, Pseudonyms& pseudonyms) {
    return rewrittenLines(text, [&](std::string_view line) -> std::optional<std::string> {
        line = trimmed(line);
        if (line.starts_with('#'))
            return std::nullopt;
        takeWord(line); // the device
        const std::string path = withoutOctalEscapes(takeWord(line));
        takeWord(line); // the file system
        if (!hidesMount(takeWord(line)))
            return std::nullopt;
        return fmt::format("none {} auto x-gvfs-hide 0 0", pseudonyms.path(path));
    });
}

std::optional<std::string> processStatText(std::string_view text, std::int32_t pid, std::string_view name) {
    const std::optional<ProcessStat> stat = parseProcessStat(text);
    if (!stat || !isPlainWord({&stat->state, 1}))
        return std::nullopt;
    return fmt::format("{} ({}) {} 0 0 0 0 -1 {} 0 0 0 0 {} {} 0 0 20 0 {} 0 {} 0 {} 0\n", pid, name,
                       stat->state, stat->flags, stat->userTicks, stat->systemTicks, stat->threadCount,
                       stat->startTime, stat->residentPages);
}

std::string ueventText(std::string_view text) {
    return rewrittenLines(text, [](std::string_view line) -> std::optional<std::string> {
        const bool isType = line.starts_with("DEVTYPE=") && isPlainWord(line.substr(8));
        const bool isIndex = line.starts_with("IFINDEX=") && isDigits(line.substr(8));
        return isType || isIndex ? std::optional<std::string>(line) : std::nullopt;
    });
}

} // namespace orvelle
