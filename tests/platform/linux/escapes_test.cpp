#include "platform/linux/escapes.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

TEST(Escapes, OctalOnesStandForBytes) {
    EXPECT_EQ(withoutOctalEscapes("/mnt/My\\040Disk\\011\\012\\134"), "/mnt/My Disk\t\n\\");
    EXPECT_EQ(withoutOctalEscapes("/mnt/B\\303\\274cher"), "/mnt/B\xC3\xBC"
                                                           "cher");
    EXPECT_EQ(withoutOctalEscapes("\\134040"), "\\040"); // replaced once, not again
}

TEST(Escapes, WhatIsNoOctalEscapeStays) {
    for (const char* text : {"", "\\", "\\04", "\\08x", "\\777", "\\-10", "a\\x20"})
        EXPECT_EQ(withoutOctalEscapes(text), text);
}

TEST(Escapes, HexadecimalOnesStandForBytes) {
    EXPECT_EQ(withoutHexEscapes("My\\x20Disk\\x2f"), "My Disk/");
    for (const char* text : {"", "\\x", "\\x2", "\\xg0", "\\040", "x20"})
        EXPECT_EQ(withoutHexEscapes(text), text);
}

} // namespace
} // namespace orvelle::linux_platform
