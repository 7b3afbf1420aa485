#include "windows/panels/machine_word.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

// Compiled once for each operating system, with the word that is expected there.
TEST(MachineWord, IsWhatPeopleSayUnderThisSystem) {
    EXPECT_EQ(machineWord().toStdString(), ORVELLE_EXPECTED_WORD);
}

} // namespace
} // namespace orvelle
