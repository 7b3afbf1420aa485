#include "platform/darwin/smc_helper.h"

#include <array>

namespace orvelle::darwin_platform {
namespace {

using namespace std::string_view_literals;

/// The client answers both commands through this one method.
constexpr std::uint32_t methodSelector = 0;

constexpr std::array cpuTemperatureKeys{"Tp09"sv, "Tp0T"sv, "Tp01"sv, "Tp05"sv, "Tp0D"sv,
                                        "Tp0H"sv, "Tp0L"sv, "Tp0P"sv, "Tp0X"sv, "Tp0b"sv};
constexpr std::array gpuTemperatureKeys{"Tg05"sv, "Tg0D"sv, "Tg0L"sv, "Tg0T"sv};
constexpr std::array fanSpeedKeys{"F0Ac"sv, "F1Ac"sv, "F2Ac"sv};

struct NamedKey {
    std::string_view key;
    std::string_view name;
};

constexpr std::array namedKeys{
    NamedKey{"Tp09", "CPU Efficiency Core 1"},
    NamedKey{"Tp0T", "CPU Performance Core 1"},
    NamedKey{"Tp01", "CPU Core 2"},
    NamedKey{"Tp05", "CPU Core 3"},
    NamedKey{"Tp0D", "CPU Core 4"},
    NamedKey{"Tp0H", "CPU Core 5"},
    NamedKey{"Tp0L", "CPU Core 6"},
    NamedKey{"Tp0P", "CPU Core 7"},
    NamedKey{"Tp0X", "CPU Core 8"},
    NamedKey{"Tp0b", "CPU Core 9"},
    NamedKey{"Tg05", "GPU Core 1"},
    NamedKey{"Tg0D", "GPU Core 2"},
    NamedKey{"Tg0L", "GPU Core 3"},
    NamedKey{"Tg0T", "GPU Core 4"},
    NamedKey{"TW0P", "Wireless Module"},
    NamedKey{"Tm0P", "Memory"},
    NamedKey{"Ts0P", "Palm Rest 1"},
    NamedKey{"Ts1P", "Palm Rest 2"},
    NamedKey{"TB0T", "Battery"},
};

/// Whether it can be the speed of a fan that turns. A controller that stores numbers the other way around can
/// answer anything, also what no integer holds.
bool isSpeed(double value) {
    constexpr double limit = 9223372036854775808.0; // 2^63, the first double beyond the range
    return value > 0 && value < limit;
}

} // namespace

std::optional<double> decodeSMCValue(const SMCParameterBlock::KeyInfo& info,
                                     const std::array<std::uint8_t, 32>& bytes) {
    const std::uint32_t twoBytes = (std::uint32_t{bytes[0]} << 8) | bytes[1];
    const std::uint32_t fourBytes = (twoBytes << 16) | (std::uint32_t{bytes[2]} << 8) | bytes[3];
    switch (info.dataType) {
    case smcCode("flt "):
        if (info.dataSize != 4)
            return std::nullopt;
        return std::bit_cast<float>(fourBytes);
    case smcCode("sp78"):
        if (info.dataSize != 2)
            return std::nullopt;
        return static_cast<std::int16_t>(twoBytes) / 256.0;
    case smcCode("ui8 "):
        return bytes[0];
    case smcCode("ui16"):
        return twoBytes;
    case smcCode("ui32"):
        return fourBytes;
    default:
        return std::nullopt;
    }
}

SMCHelper::SMCHelper(SMCUserClient& client)
    : m_client(client) {
    open();
}

SMCHelper::~SMCHelper() {
    close();
}

void SMCHelper::open() {
    const std::lock_guard guard(m_lock);
    m_isOpen = m_client.open();
}

void SMCHelper::close() {
    const std::lock_guard guard(m_lock);
    if (m_isOpen)
        m_client.close();
    m_isOpen = false;
}

std::optional<double> SMCHelper::readKey(std::string_view key) {
    const std::lock_guard guard(m_lock);
    if (!m_isOpen)
        return std::nullopt;
    SMCParameterBlock input;
    SMCParameterBlock output;
    input.key = smcCode(key);
    input.data8 = SMCParameterBlock::readKeyInfoCommand;
    std::size_t outputSize = sizeof output;
    if (!m_client.callStructMethod(methodSelector, input, output, outputSize))
        return std::nullopt;

    // The second answer is decoded with what the first said of the key: the controller need not repeat it.
    const SMCParameterBlock::KeyInfo info = output.keyInfo;
    input.keyInfo.dataSize = info.dataSize;
    input.data8 = SMCParameterBlock::readBytesCommand;
    outputSize = sizeof output;
    if (!m_client.callStructMethod(methodSelector, input, output, outputSize))
        return std::nullopt;
    return decodeSMCValue(info, output.bytes);
}

std::optional<double> SMCHelper::firstPlausibleOf(std::span<const std::string_view> keys) {
    for (const std::string_view key : keys) {
        const std::optional<double> value = readKey(key);
        if (value && isPlausibleTemperature(*value))
            return value;
    }
    return std::nullopt;
}

std::optional<double> SMCHelper::readCPUTemperature() {
    return firstPlausibleOf(cpuTemperatureKeys);
}

std::optional<double> SMCHelper::readGPUTemperature() {
    return firstPlausibleOf(gpuTemperatureKeys);
}

std::vector<NamedTemperature> SMCHelper::readSensors() {
    std::vector<NamedTemperature> sensors;
    for (const auto& [key, name] : namedKeys) {
        const std::optional<double> value = readKey(key);
        if (value && isPlausibleTemperature(*value))
            sensors.push_back({.key = std::string(key), .name = std::string(name), .value = *value});
    }
    return sensors;
}

std::vector<std::int64_t> SMCHelper::readFanSpeeds() {
    std::vector<std::int64_t> speeds;
    for (const std::string_view key : fanSpeedKeys) {
        const std::optional<double> speed = readKey(key);
        if (speed && isSpeed(*speed))
            speeds.push_back(static_cast<std::int64_t>(*speed));
    }
    return speeds;
}

} // namespace orvelle::darwin_platform
