#include "private_folders_list.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(TestEnvironment, HasOnlyTheFontsThatAreInstalledForTheTests) {
    QStringList families = QFontDatabase::families();
    for (const char* alias : {"Monospace", "Sans Serif", "Serif"})
        families.removeAll(QLatin1String(alias));
    EXPECT_EQ(families.join(u',').toStdString(), "DejaVu Sans,DejaVu Sans Mono,DejaVu Serif");
    for (const QString& family : families) {
        const QStringList styles = QFontDatabase::styles(family);
        EXPECT_EQ(QSet<QString>(styles.begin(), styles.end()),
                  (QSet<QString>{QStringLiteral("Bold"), QStringLiteral("Book")}))
            << family.toStdString() << ": " << styles.join(u',').toStdString();
    }
}

TEST(TestEnvironment, UsesPrivateFoldersInPlaceOfTheUsers) {
    for (const QStandardPaths::StandardLocation location :
         {QStandardPaths::HomeLocation, QStandardPaths::GenericConfigLocation,
          QStandardPaths::GenericDataLocation, QStandardPaths::GenericCacheLocation,
          QStandardPaths::RuntimeLocation}) {
        const QString folder = QStandardPaths::writableLocation(location);
        EXPECT_TRUE(QDir(folder).exists() && folder.startsWith(QStringLiteral(ORVELLE_TEST_HOME)))
            << folder.toStdString();
    }
    EXPECT_TRUE(qEnvironmentVariable("XDG_STATE_HOME").startsWith(QStringLiteral(ORVELLE_TEST_HOME)));
}

TEST(TestEnvironment, HasNoWayToTheUsersDesktop) {
    for (const char* const name : addressesOfTheDesktop)
        EXPECT_FALSE(qEnvironmentVariableIsSet(name)) << name;
}

TEST(TestEnvironment, IsThatOfAProgramThatIsRunByHandToo) {
    const QTemporaryDir usersHome;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, folder] : privateFolders)
        environment.insert(QLatin1String(name), usersHome.path());
    for (const char* const name : addressesOfTheDesktop)
        environment.insert(QLatin1String(name), QStringLiteral("the user's"));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=TestEnvironment.UsesPrivateFoldersInPlaceOfTheUsers:"
                                  "TestEnvironment.HasNoWayToTheUsersDesktop")});
    ASSERT_TRUE(program.waitForFinished());
    const QByteArray output = program.readAll();
    EXPECT_EQ(program.exitCode(), 0) << output.toStdString();
    EXPECT_TRUE(output.contains("2 tests ran") || output.contains("2 tests from")) << output.toStdString();
    EXPECT_TRUE(QDir(usersHome.path()).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
}

} // namespace
} // namespace orvelle
