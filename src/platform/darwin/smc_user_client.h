#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>

namespace orvelle::darwin_platform {

/// The structure that the System Management Controller's user client takes and gives: 80 bytes, integers in
/// the host's little-endian order. A field that a command does not name stays 0.
struct SMCParameterBlock {
    struct Version {
        std::uint8_t major = 0;
        std::uint8_t minor = 0;
        std::uint8_t build = 0;
        std::uint8_t reserved = 0;
        std::uint16_t release = 0;
    };
    struct PowerLimits {
        std::uint16_t version = 0;
        std::uint16_t length = 0;
        std::uint32_t cpuPLimit = 0;
        std::uint32_t gpuPLimit = 0;
        std::uint32_t memPLimit = 0;
    };
    struct KeyInfo {
        std::uint32_t dataSize = 0; ///< bytes of the value: answer to `readKeyInfo`, input of `readBytes`
        std::uint32_t dataType = 0; ///< four-character code of the value's type: answer to `readKeyInfo`
        std::uint8_t dataAttributes = 0;
        std::array<std::uint8_t, 3> padding{};
    };
    static constexpr std::uint8_t readBytesCommand = 5;
    static constexpr std::uint8_t readKeyInfoCommand = 9;

    std::uint32_t key = 0; ///< four-character code
    Version vers;
    std::array<std::uint8_t, 2> paddingAfterVersion{};
    PowerLimits pLimitData;
    KeyInfo keyInfo;
    std::uint8_t result = 0;
    std::uint8_t status = 0;
    std::uint8_t data8 = 0; ///< the command
    std::uint8_t paddingAfterCommand = 0;
    std::uint32_t data32 = 0;
    std::array<std::uint8_t, 32> bytes{}; ///< the value, most significant byte first
};

static_assert(sizeof(SMCParameterBlock) == 80);
static_assert(offsetof(SMCParameterBlock, key) == 0);
static_assert(offsetof(SMCParameterBlock, vers) == 4);
static_assert(offsetof(SMCParameterBlock, vers.release) == 8);
static_assert(offsetof(SMCParameterBlock, pLimitData) == 12);
static_assert(offsetof(SMCParameterBlock, pLimitData.cpuPLimit) == 16);
static_assert(offsetof(SMCParameterBlock, pLimitData.gpuPLimit) == 20);
static_assert(offsetof(SMCParameterBlock, pLimitData.memPLimit) == 24);
static_assert(offsetof(SMCParameterBlock, keyInfo) == 28);
static_assert(offsetof(SMCParameterBlock, keyInfo.dataType) == 32);
static_assert(offsetof(SMCParameterBlock, keyInfo.dataAttributes) == 36);
static_assert(offsetof(SMCParameterBlock, result) == 40);
static_assert(offsetof(SMCParameterBlock, status) == 41);
static_assert(offsetof(SMCParameterBlock, data8) == 42);
static_assert(offsetof(SMCParameterBlock, data32) == 44);
static_assert(offsetof(SMCParameterBlock, bytes) == 48);
static_assert(std::has_unique_object_representations_v<SMCParameterBlock>, "every padding byte is named");
static_assert(std::endian::native == std::endian::little, "the controller's machines are little-endian");

/// A connection to the "AppleSMC" service, the system's way to the System Management Controller.
class SMCUserClient {
public:
    virtual ~SMCUserClient() = default;

    /// Finds the service and opens a connection to it; false when there is no such service or it refuses.
    [[nodiscard]] virtual bool open() = 0;

    /// Calls the client's method `selector` with `input`. `outputSize` says how large `output` is and becomes
    /// the size of the answer. False when the call fails; `output` then means nothing.
    [[nodiscard]] virtual bool callStructMethod(std::uint32_t selector, const SMCParameterBlock& input,
                                                SMCParameterBlock& output, std::size_t& outputSize) = 0;

    /// Gives the connection back. Called at most once for each `open` that succeeded.
    virtual void close() = 0;
};

/// The user client of this machine's "AppleSMC" service, not yet open.
[[nodiscard]] std::unique_ptr<SMCUserClient> makeSMCUserClient();

} // namespace orvelle::darwin_platform
