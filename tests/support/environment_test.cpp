#include <QDir>
#include <QFontDatabase>
#include <QStandardPaths>
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

} // namespace
} // namespace orvelle
