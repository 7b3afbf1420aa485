#include "support/text_places.h"
#include "windows/settings/settings_fixture.h"

namespace orvelle {
namespace {

// ctest also runs these in a wider and in a narrower font.
class SettingsTexts : public SettingsFixture {
protected:
    void expectReadable() {
        settle();
        expectReadableTexts(*view->contentItem());
    }

    /// Chooses the same index in every group, because a chosen label is bolder.
    void chooseEverywhere(int index) {
        const QList<QQuickItem*> groups =
            items([](const QQuickItem* each) { return each->property("chosenIndex").isValid(); });
        EXPECT_EQ(groups.size(), 10);
        for (QQuickItem* group : groups) {
            const auto choices = group->property("choices").toList();
            QMetaObject::invokeMethod(group, "chosen",
                                      Q_ARG(int, std::min(index, static_cast<int>(choices.size()) - 1)));
        }
    }
};

TEST_F(SettingsTexts, UseTheFontOfThisRun) {
    expectTheFontsOfThisRun();
}

TEST_F(SettingsTexts, AreReadableAtBothSizesForEveryChoice) {
    openOverrides();
    for (const QSize& size : {settingsSize, smallestSettingsSize}) {
        view->resize(size);
        for (int index = 0; index < 12; ++index) {
            chooseEverywhere(index);
            expectReadable();
        }
    }
}

TEST_F(SettingsTexts, AreReadableInAFontHalfAsWideAgain) {
    openOverrides();
    spreadLetters(*view->contentItem(), 150);
    for (const QSize& size : {settingsSize, smallestSettingsSize}) {
        view->resize(size);
        expectReadable();
        EXPECT_EQ(group(u"CPU Display")->property("columns").toInt(), 2)
            << "the segments use the available width";
    }
}

TEST_F(SettingsTexts, AreReadableBelowANotice) {
    login.error = QStringLiteral("Orvelle could not be kept from starting at login.");
    Q_EMIT login.errorChanged();
    for (const QSize& size : {settingsSize, smallestSettingsSize}) {
        view->resize(size);
        EXPECT_TRUE(item("loginNotice")->isVisible());
        expectReadable();
    }
}

TEST_F(SettingsTexts, AreReadableWhileLaunchingAtLoginWaitsForApproval) {
    login.needsApproval = true;
    Q_EMIT login.needsApprovalChanged();
    for (const QSize& size : {settingsSize, smallestSettingsSize}) {
        view->resize(size);
        EXPECT_TRUE(item("loginApproval")->isVisible());
        expectReadable();
    }
}

TEST_F(SettingsTexts, AreReadableInTheColorPicker) {
    settings.setUseCustomCPUColor(true);
    openOverrides();
    view->resize(smallestSettingsSize);
    settle();
    click(item("well", overrideRow(u"CPU")));
    settle();
    ASSERT_NE(focused(), nullptr);
    const QQuickItem* parts = focused()->parentItem()->parentItem();
    EXPECT_EQ(shownTextsIn(*parts).size(), 1);
    expectReadableTexts(*parts);
}

} // namespace
} // namespace orvelle
