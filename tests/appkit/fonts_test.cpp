#include "appkit/program.h"
#include "theme/fonts.h"

#include <QDir>
#include <QFontDatabase>

namespace orvelle {
namespace {

using namespace simulated;

/// A file that every test may read, which stands for one of the system's.
std::string fontFile(const char* name) {
    return QDir::home()
        .filePath(QStringLiteral("fonts-usual/%1.ttf").arg(QLatin1StringView(name)))
        .toStdString();
}

class SystemFontsTest : public AppKitTest {
protected:
    SystemFontsTest() {
        desktop().script.fontFiles = {{"monospaced", fontFile("DejaVuSerif")},
                                      {"rounded", fontFile("DejaVuSansMono")}};
    }
    ~SystemFontsTest() override {
        setDesignedFontFamilies({});
        QFontDatabase::removeAllApplicationFonts();
    }

    /// The families of the monospaced and the round font once the program follows those of the system.
    [[nodiscard]] std::vector<QString> families() {
        const std::unique_ptr<QObject> follower = program().desktop->followFonts();
        return {monospacedSystemFont(11).family(), roundedSystemFont(11).family()};
    }

    const QString usualMonospaced = monospacedSystemFont(11).family();
    const QString usualRounded = roundedSystemFont(11).family();
};

TEST_F(SystemFontsTest, AreThoseOfTheSystemsDesigns) {
    EXPECT_EQ(families(),
              (std::vector<QString>{QStringLiteral("DejaVu Serif"), QStringLiteral("DejaVu Sans Mono")}));
    EXPECT_EQ(monospacedSystemFont(10, QFont::Medium).weight(), QFont::Medium);
}

TEST_F(SystemFontsTest, AreTheUsualOnesWhereTheSystemHasNoSuchDesign) {
    for (const char* call : {"fontDescriptorWithDesign", "fontWithDescriptor", "CTFontCopyAttribute"}) {
        desktop().failCallsTo(call);
        EXPECT_EQ(families(), (std::vector<QString>{usualMonospaced, usualRounded})) << call;
    }
}

TEST_F(SystemFontsTest, AreTheUsualOnesWhereTheFileCannotBeRead) {
    desktop().script.fontFiles["monospaced"] = fontFile("NoSuchFont");
    EXPECT_EQ(families(), (std::vector<QString>{usualMonospaced, QStringLiteral("DejaVu Sans Mono")}));
}

} // namespace
} // namespace orvelle
