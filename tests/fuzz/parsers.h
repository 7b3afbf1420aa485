#pragma once

#include <array>
#include <string_view>

/// One function for each parser of text from outside, for a fuzzer to call with anything. It parses the text
/// and throws when the result breaks a promise of the parser's header; a bad memory access or undefined
/// behaviour is the sanitizers' to find. `corpus/<name>` holds texts to begin with.
namespace orvelle::fuzz {

void fuzzAddresses(std::string_view text);
void fuzzArcStatistics(std::string_view text);
void fuzzAttribute(std::string_view text);
void fuzzBattery(std::string_view text);
void fuzzDefaultRoutes(std::string_view text);
void fuzzDiskstats(std::string_view text);
void fuzzEscapes(std::string_view text);
void fuzzExecutablePath(std::string_view text);
void fuzzFstab(std::string_view text);
void fuzzHwmonNames(std::string_view text);
void fuzzInterfaceKind(std::string_view text);
void fuzzInterfaceState(std::string_view text);
void fuzzLoadAverages(std::string_view text);
void fuzzMeminfo(std::string_view text);
void fuzzMountinfo(std::string_view text);
void fuzzNames(std::string_view text);
void fuzzNamespaceStatus(std::string_view text);
void fuzzNetDev(std::string_view text);
void fuzzNewestPid(std::string_view text);
void fuzzProcStat(std::string_view text);
void fuzzProcessStat(std::string_view text);
void fuzzStartRequests(std::string_view text);
void fuzzVolumeSpaces(std::string_view text);
void fuzzXSettings(std::string_view text);
void fuzzZramStatistics(std::string_view text);

struct Parser {
    std::string_view name;
    void (*body)(std::string_view);
};

inline constexpr std::array parsers{
    Parser{"Addresses", fuzzAddresses},
    Parser{"ArcStatistics", fuzzArcStatistics},
    Parser{"Attribute", fuzzAttribute},
    Parser{"Battery", fuzzBattery},
    Parser{"DefaultRoutes", fuzzDefaultRoutes},
    Parser{"Diskstats", fuzzDiskstats},
    Parser{"Escapes", fuzzEscapes},
    Parser{"ExecutablePath", fuzzExecutablePath},
    Parser{"Fstab", fuzzFstab},
    Parser{"HwmonNames", fuzzHwmonNames},
    Parser{"InterfaceKind", fuzzInterfaceKind},
    Parser{"InterfaceState", fuzzInterfaceState},
    Parser{"LoadAverages", fuzzLoadAverages},
    Parser{"Meminfo", fuzzMeminfo},
    Parser{"Mountinfo", fuzzMountinfo},
    Parser{"Names", fuzzNames},
    Parser{"NamespaceStatus", fuzzNamespaceStatus},
    Parser{"NetDev", fuzzNetDev},
    Parser{"NewestPid", fuzzNewestPid},
    Parser{"ProcStat", fuzzProcStat},
    Parser{"ProcessStat", fuzzProcessStat},
    Parser{"StartRequests", fuzzStartRequests},
    Parser{"VolumeSpaces", fuzzVolumeSpaces},
    Parser{"XSettings", fuzzXSettings},
    Parser{"ZramStatistics", fuzzZramStatistics},
};

} // namespace orvelle::fuzz
