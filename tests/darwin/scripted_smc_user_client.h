#pragma once

#include "platform/darwin/smc_helper.h"

#include <cstring>
#include <map>

namespace orvelle::darwin_platform {

/// Stands in for the System Management Controller: it knows the keys that a test gives it, answers an unknown
/// key as the controller does (success, and a type of 0), and notes every call.
class ScriptedSMCUserClient final : public SMCUserClient {
public:
    using WireBlock = std::array<std::uint8_t, 80>;

    struct Value {
        std::uint32_t dataSize = 0;
        std::uint32_t dataType = 0;
        std::array<std::uint8_t, 32> bytes{};
    };
    struct Call {
        std::uint32_t selector = 0;
        std::size_t outputSize = 0;
        WireBlock input{};
        WireBlock outputBefore{};
    };

    bool acceptsOpen = true;
    /// The command whose calls fail, 0 for none.
    std::uint8_t failingCommand = 0;
    /// What the controller says of every call by itself, apart from its answer.
    std::uint8_t resultByte = 0;
    std::uint8_t statusByte = 0;
    int openCount = 0;
    int closeCount = 0;
    std::vector<Call> calls;

    void set(std::string_view key, std::string_view type, std::uint32_t size,
             const std::vector<std::uint8_t>& bytes) {
        Value value{.dataSize = size, .dataType = smcCode(type)};
        std::copy(bytes.begin(), bytes.end(), value.bytes.begin());
        m_values[smcCode(key)] = value;
    }

    /// Gives `key` a floating-point value.
    void setFloat(std::string_view key, float number) {
        const auto bits = std::bit_cast<std::uint32_t>(number);
        set(key, "flt ", 4,
            {static_cast<std::uint8_t>(bits >> 24), static_cast<std::uint8_t>(bits >> 16),
             static_cast<std::uint8_t>(bits >> 8), static_cast<std::uint8_t>(bits)});
    }

    void forget(std::string_view key) { m_values.erase(smcCode(key)); }

    /// The keys that were asked for, in order, each once per question.
    [[nodiscard]] std::vector<std::uint32_t> askedKeys() const {
        std::vector<std::uint32_t> keys;
        for (const Call& call : calls) {
            const auto block = std::bit_cast<SMCParameterBlock>(call.input);
            if (block.data8 == SMCParameterBlock::readKeyInfoCommand)
                keys.push_back(block.key);
        }
        return keys;
    }

    [[nodiscard]] bool open() override {
        ++openCount;
        return acceptsOpen;
    }

    [[nodiscard]] bool callStructMethod(std::uint32_t selector, const SMCParameterBlock& input,
                                        SMCParameterBlock& output, std::size_t& outputSize) override {
        calls.push_back(
            {selector, outputSize, std::bit_cast<WireBlock>(input), std::bit_cast<WireBlock>(output)});
        if (input.data8 == failingCommand)
            return false;
        const auto found = m_values.find(input.key);
        const Value value = found == m_values.end() ? Value{} : found->second;
        output = SMCParameterBlock{};
        output.result = resultByte;
        output.status = statusByte;
        // Each command answers its own part only, as the controller does.
        if (input.data8 == SMCParameterBlock::readKeyInfoCommand) {
            output.keyInfo.dataSize = value.dataSize;
            output.keyInfo.dataType = value.dataType;
        } else if (input.data8 == SMCParameterBlock::readBytesCommand) {
            output.bytes = value.bytes;
        }
        return true;
    }

    void close() override { ++closeCount; }

private:
    std::map<std::uint32_t, Value> m_values;
};

} // namespace orvelle::darwin_platform
