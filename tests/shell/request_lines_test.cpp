#include "shell/painted/request_lines.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using Requests = std::vector<StartRequest>;

const StartRequest again;
const StartRequest settingsRequest{StartRequest::Kind::openSettings, {}};
const StartRequest quit{StartRequest::Kind::quit, {}};
const StartRequest cpu{StartRequest::Kind::openPanel, QStringLiteral("cpu")};

TEST(RequestLines, AreReadOneByOne) {
    RequestLines lines;
    EXPECT_EQ(lines.take("settings\n"), Requests{settingsRequest});
    EXPECT_EQ(lines.take("open cpu\nquit\n\n"), (Requests{cpu, quit, again}));
    EXPECT_EQ(lines.take(""), Requests());
}

TEST(RequestLines, WaitForTheEndOfALine) {
    RequestLines lines;
    EXPECT_EQ(lines.take("open cpu\nset"), Requests{cpu});
    EXPECT_EQ(lines.take("tin"), Requests());
    EXPECT_EQ(lines.take("gs\n"), Requests{settingsRequest});
}

TEST(RequestLines, GoOnAfterALineThatWasCutOff) {
    RequestLines lines;
    EXPECT_EQ(lines.take("sett"), Requests());
    EXPECT_EQ(lines.take("open cpu\nopen cpu\n"), (Requests{again, cpu}));
}

TEST(RequestLines, KeepLittleOfALineWithoutAnEnd) {
    RequestLines lines;
    for (int count = 0; count < 1000; ++count)
        EXPECT_EQ(lines.take(QByteArray(1000, 'q')), Requests());
    EXPECT_EQ(lines.take("\nquit\n"), (Requests{again, quit}));
}

TEST(RequestLines, TakeALineThatOnlyBeginsLikeARequestForAnotherStart) {
    RequestLines lines;
    EXPECT_EQ(lines.take("open abcdefghijklmno\n"),
              (Requests{{StartRequest::Kind::openPanel, QStringLiteral("abcdefghijklmno")}}));
    EXPECT_EQ(lines.take("open abcdefghijklmnop\n"), Requests{again});
}

TEST(RequestLines, TakeGarbageForOneMoreStart) {
    RequestLines lines;
    EXPECT_EQ(lines.take(QByteArray("\xff\0\x01\n\n\x1b[2J\n", 9)), Requests{again});
}

TEST(RequestLines, AskOnceForWhatAFloodAsksFor) {
    RequestLines lines;
    EXPECT_EQ(lines.take(QByteArray("settings\n").repeated(10'000)), Requests{settingsRequest});
    EXPECT_EQ(lines.take(QByteArray(60'000, '\n')), Requests{again});
    EXPECT_EQ(lines.take("settings\nsettings\nopen cpu\nsettings\n"),
              (Requests{settingsRequest, cpu, settingsRequest}));
}

} // namespace
} // namespace orvelle
