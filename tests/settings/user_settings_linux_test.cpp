#include "settings/settings_store.h"
#include "settings/user_settings.h"
#include "support/environment.h"
#include "support/temporary_settings.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

QString userSettingsPath() {
    const std::unique_ptr<SettingsStorage> storage = openUserSettings();
    const auto* const file = dynamic_cast<const SettingsFile*>(storage.get());
    return file != nullptr ? file->filePath() : QString();
}

TEST(UserSettingsOnLinux, AreInTheFolderThatTheEnvironmentNames) {
    const EnvironmentVariable folder("XDG_CONFIG_HOME", "/somewhere/else");
    EXPECT_EQ(userSettingsPath(), u"/somewhere/else/orvelle/orvelle.conf"_s);
}

TEST(UserSettingsOnLinux, AreInTheHomeFolderWhenTheEnvironmentNamesNone) {
    const EnvironmentVariable folder("XDG_CONFIG_HOME", {});
    const EnvironmentVariable home("HOME", "/home/somebody");
    EXPECT_EQ(userSettingsPath(), u"/home/somebody/.config/orvelle/orvelle.conf"_s);
}

TEST(UserSettingsOnLinux, AreKept) {
    const TemporarySettings settings;
    const EnvironmentVariable folder("XDG_CONFIG_HOME", settings.folderPath().toLocal8Bit());
    SettingsStore(openUserSettings()).setShowDisk(true);
    EXPECT_TRUE(SettingsStore(openUserSettings()).showDisk());
    EXPECT_TRUE(QFile::exists(userSettingsPath()));
}

TEST(UserSettingsOnLinux, CanBeReadWithoutAnyTraceOfTheReader) {
    const TemporarySettings settings;
    const EnvironmentVariable folder("XDG_CONFIG_HOME", settings.folderPath().toLocal8Bit());
    EXPECT_EQ(readUserSettings({u"showDisk"_s}), StoredValues());
    EXPECT_FALSE(QFile::exists(userSettingsPath()));
    SettingsStore(openUserSettings()).setShowDisk(true);
    QFile interrupted(QFileInfo(userSettingsPath()).path() + u"/.orvelle.conf.last"_s);
    EXPECT_TRUE(interrupted.open(QIODevice::WriteOnly)); // as a power cut may leave it
    EXPECT_EQ(readUserSettings({u"showDisk"_s, u"showCPU"_s}), (StoredValues{{u"showDisk"_s, u"true"_s}}));
    EXPECT_TRUE(interrupted.exists());
}

} // namespace
} // namespace orvelle
