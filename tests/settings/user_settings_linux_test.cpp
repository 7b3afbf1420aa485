#include "settings/settings_storage.h"
#include "support/environment.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

TEST(UserSettingsOnLinux, AreInTheFolderThatTheEnvironmentNames) {
    const EnvironmentVariable folder("XDG_CONFIG_HOME", "/somewhere/else");
    EXPECT_EQ(openUserSettings()->filePath(), u"/somewhere/else/orvelle/orvelle.conf"_s);
}

TEST(UserSettingsOnLinux, AreInTheHomeFolderWhenTheEnvironmentNamesNone) {
    const EnvironmentVariable folder("XDG_CONFIG_HOME", {});
    const EnvironmentVariable home("HOME", "/home/somebody");
    EXPECT_EQ(openUserSettings()->filePath(), u"/home/somebody/.config/orvelle/orvelle.conf"_s);
}

} // namespace
} // namespace orvelle
