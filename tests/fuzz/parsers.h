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
void fuzzAutostart(std::string_view text);
void fuzzBarTexts(std::string_view text);
void fuzzBattery(std::string_view text);
void fuzzBusAddress(std::string_view text);
void fuzzCommandLine(std::string_view text);
void fuzzCustomColor(std::string_view text);
void fuzzDefaultRoutes(std::string_view text);
void fuzzDiskstats(std::string_view text);
void fuzzEscapes(std::string_view text);
void fuzzExecutablePath(std::string_view text);
void fuzzFontDescription(std::string_view text);
void fuzzFstab(std::string_view text);
void fuzzHarmlessWord(std::string_view text);
void fuzzHwmonNames(std::string_view text);
void fuzzInterfaceKind(std::string_view text);
void fuzzInterfaceState(std::string_view text);
void fuzzLoadAverages(std::string_view text);
void fuzzMeminfo(std::string_view text);
void fuzzMenuCalls(std::string_view text);
void fuzzMountinfo(std::string_view text);
void fuzzNames(std::string_view text);
void fuzzNamespaceStatus(std::string_view text);
void fuzzNetDev(std::string_view text);
void fuzzNewestPid(std::string_view text);
void fuzzPortalValues(std::string_view text);
void fuzzProbeArguments(std::string_view text);
void fuzzProcStat(std::string_view text);
void fuzzProcessStat(std::string_view text);
void fuzzPseudonyms(std::string_view text);
void fuzzReportTexts(std::string_view text);
void fuzzScreenScale(std::string_view text);
void fuzzSettingValues(std::string_view text);
void fuzzSettingsFile(std::string_view text);
void fuzzSnapshotArguments(std::string_view text);
void fuzzStartRequests(std::string_view text);
void fuzzTrayPlaces(std::string_view text);
void fuzzValuePaths(std::string_view text);
void fuzzVolumeSpaces(std::string_view text);
void fuzzWindowFrame(std::string_view text);
void fuzzWorkArea(std::string_view text);
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
    Parser{"Autostart", fuzzAutostart},
    Parser{"BarTexts", fuzzBarTexts},
    Parser{"Battery", fuzzBattery},
    Parser{"BusAddress", fuzzBusAddress},
    Parser{"CommandLine", fuzzCommandLine},
    Parser{"CustomColor", fuzzCustomColor},
    Parser{"DefaultRoutes", fuzzDefaultRoutes},
    Parser{"Diskstats", fuzzDiskstats},
    Parser{"Escapes", fuzzEscapes},
    Parser{"ExecutablePath", fuzzExecutablePath},
    Parser{"FontDescription", fuzzFontDescription},
    Parser{"Fstab", fuzzFstab},
    Parser{"HarmlessWord", fuzzHarmlessWord},
    Parser{"HwmonNames", fuzzHwmonNames},
    Parser{"InterfaceKind", fuzzInterfaceKind},
    Parser{"InterfaceState", fuzzInterfaceState},
    Parser{"LoadAverages", fuzzLoadAverages},
    Parser{"Meminfo", fuzzMeminfo},
    Parser{"MenuCalls", fuzzMenuCalls},
    Parser{"Mountinfo", fuzzMountinfo},
    Parser{"Names", fuzzNames},
    Parser{"NamespaceStatus", fuzzNamespaceStatus},
    Parser{"NetDev", fuzzNetDev},
    Parser{"NewestPid", fuzzNewestPid},
    Parser{"PortalValues", fuzzPortalValues},
    Parser{"ProbeArguments", fuzzProbeArguments},
    Parser{"ProcStat", fuzzProcStat},
    Parser{"ProcessStat", fuzzProcessStat},
    Parser{"Pseudonyms", fuzzPseudonyms},
    Parser{"ReportTexts", fuzzReportTexts},
    Parser{"ScreenScale", fuzzScreenScale},
    Parser{"SettingValues", fuzzSettingValues},
    Parser{"SettingsFile", fuzzSettingsFile},
    Parser{"SnapshotArguments", fuzzSnapshotArguments},
    Parser{"StartRequests", fuzzStartRequests},
    Parser{"TrayPlaces", fuzzTrayPlaces},
    Parser{"ValuePaths", fuzzValuePaths},
    Parser{"VolumeSpaces", fuzzVolumeSpaces},
    Parser{"WindowFrame", fuzzWindowFrame},
    Parser{"WorkArea", fuzzWorkArea},
    Parser{"XSettings", fuzzXSettings},
    Parser{"ZramStatistics", fuzzZramStatistics},
};

} // namespace orvelle::fuzz
