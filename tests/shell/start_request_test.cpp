#include "shell/start_request.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using Kind = StartRequest::Kind;

TEST(StartRequest, IsTheSameAfterItsTextHasBeenRead) {
    const QString longest(longestRequestedModule, u'm');
    for (const StartRequest& request :
         {StartRequest(), StartRequest{Kind::openSettings, {}}, StartRequest{Kind::quit, {}},
          StartRequest{Kind::openPanel, QStringLiteral("cpu")}, StartRequest{Kind::openPanel, longest}}) {
        const QByteArray text = startRequestText(request);
        EXPECT_EQ(parseStartRequest(text), request) << text.constData();
        EXPECT_LE(text.size(), longestStartRequest);
        EXPECT_FALSE(text.contains('\n'));
    }
}

// Other versions of the program run beside this one until the user restarts them.
TEST(StartRequest, KeepsItsTexts) {
    EXPECT_EQ(startRequestText({}), "");
    EXPECT_EQ(startRequestText({Kind::openSettings, {}}), "settings");
    EXPECT_EQ(startRequestText({Kind::openPanel, QStringLiteral("cpu")}), "open cpu");
    EXPECT_EQ(startRequestText({Kind::quit, {}}), "quit");
}

TEST(StartRequest, TakesAnyOtherTextForAnotherStart) {
    for (const char* text :
         {"", " ", "quit now", "Quit", "settings ", "open", "open ", "open  cpu", "open cpu ", "open ../etc",
          "open a-module-of-a-later-version", "opencpu", "\xff\xfe", "\n"})
        EXPECT_EQ(parseStartRequest(text), StartRequest()) << text;
    EXPECT_EQ(parseStartRequest(QByteArray("quit\0", 5)), StartRequest());
    EXPECT_EQ(parseStartRequest(QByteArray("open c\0u", 8)), StartRequest());
    EXPECT_EQ(parseStartRequest(QByteArray(1'000'000, 'a')), StartRequest());
}

TEST(StartRequest, LeavesItToTheProgramWhichModulesThereAre) {
    EXPECT_EQ(parseStartRequest("open gpu2"), (StartRequest{Kind::openPanel, QStringLiteral("gpu2")}));
}

} // namespace
} // namespace orvelle
