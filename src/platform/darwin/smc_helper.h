#pragma once

#include "core/sources/sensor_source.h"
#include "platform/darwin/smc_user_client.h"

#include <mutex>
#include <span>
#include <string_view>

namespace orvelle::darwin_platform {

/// The code of a key or a type: its first four bytes, most significant first; fewer when the text is shorter.
[[nodiscard]] constexpr std::uint32_t smcCode(std::string_view text) {
    std::uint32_t code = 0;
    for (const char byte : text.substr(0, 4))
        code = (code << 8) | static_cast<std::uint8_t>(byte);
    return code;
}

/// The number that a value of the given type stands for; nothing for a type that is not understood or a
/// floating- or fixed-point value of the wrong size.
[[nodiscard]] std::optional<double> decodeSMCValue(const SMCParameterBlock::KeyInfo& info,
                                                   const std::array<std::uint8_t, 32>& bytes);

/// The program's only way to the System Management Controller. It opens one connection when it is created and
/// never again: when that fails, every reading is nothing. It only ever reads. Any thread may call it.
class SMCHelper final : public SensorSource {
public:
    explicit SMCHelper(SMCUserClient& client);
    ~SMCHelper() override;
    SMCHelper(const SMCHelper&) = delete;
    SMCHelper& operator=(const SMCHelper&) = delete;

    /// The value of one key, such as "Tp09"; nothing when it cannot be read.
    [[nodiscard]] std::optional<double> readKey(std::string_view key);

    [[nodiscard]] std::optional<double> readCPUTemperature() override;
    [[nodiscard]] std::optional<double> readGPUTemperature() override;
    /// The keys that have a name and read plausibly, in the order of the program's table.
    [[nodiscard]] std::vector<NamedTemperature> readSensors() override;
    /// A fan that stands still, does not answer or answers a speed that no integer can hold leaves no gap:
    /// its successor takes its position.
    [[nodiscard]] std::vector<std::int64_t> readFanSpeeds() override;

private:
    void open();
    void close();
    [[nodiscard]] std::optional<double> firstPlausibleOf(std::span<const std::string_view> keys);

    SMCUserClient& m_client;
    bool m_isOpen = false;
    std::mutex m_lock; ///< held for the whole of opening, closing and the two calls of one key
};

} // namespace orvelle::darwin_platform
