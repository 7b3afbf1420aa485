#pragma once

#include "core/sources/machine_sources.h"
#include "darwin/simulated/kernel.h"

#include <gtest/gtest.h>

namespace orvelle {

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

/// A small notebook on which every question has an answer.
[[nodiscard]] simulated::Machine typicalMachine();

/// What the typical machine's sources answer where a test changes only a part.
[[nodiscard]] MemoryReading typicalMemoryReading();

/// A test on a fresh simulated system that holds the typical machine. At its end everything lent must have
/// been given back and no call may have been wrong.
class DarwinTest : public ::testing::Test {
protected:
    DarwinTest();
    void TearDown() override;

    /// The sources under test; the calls that made them are forgotten.
    [[nodiscard]] MachineSources& host();
    /// The typical machine as it is scripted now.
    [[nodiscard]] static simulated::Machine& machine() { return simulated::kernel().machine; }
    /// The calls into the system since the sources were made or this was asked last.
    [[nodiscard]] static std::vector<std::string> takeSystemCalls();
    /// Gives back what is held and checks the account, as at the end of the test; then the test goes on with
    /// a fresh system.
    void startAfresh();

private:
    std::optional<MachineSources> m_host;
};

} // namespace orvelle
