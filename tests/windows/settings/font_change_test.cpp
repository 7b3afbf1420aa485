#include "settings_fixture.h"
#include "support/text_places.h"
#include "theme/fonts.h"

namespace orvelle {
namespace {

class SettingsFonts : public SettingsFixture {
protected:
    ~SettingsFonts() override { setDesktopFontNames({}); }

    [[nodiscard]] QStringList families() const {
        QStringList found;
        for (const QQuickItem* text : shownTextsIn(*view->rootObject()))
            found.append(text->property("font").value<QFont>().family());
        found.removeDuplicates();
        return found;
    }
};

TEST_F(SettingsFonts, FollowTheDesktop) {
    const QStringList before = families();
    const QString serif = QStringLiteral("DejaVu Serif");
    ASSERT_FALSE(before.isEmpty());
    ASSERT_FALSE(before.contains(serif));
    setDesktopFontNames({.proportional = serif, .monospaced = serif});
    settle();
    EXPECT_EQ(families(), QStringList(serif));
    expectReadableTexts(*view->rootObject());
    setDesktopFontNames({});
    settle();
    EXPECT_EQ(families(), before);
}

} // namespace
} // namespace orvelle
