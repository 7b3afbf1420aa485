#include "settings/store_timers.h"
#include "support/temporary_settings.h"

#include <QSignalSpy>

#include <memory>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

class SettingsTuningTest : public ::testing::Test {
protected:
    SettingsTuningTest() {
        using namespace std::chrono_literals;
        EXPECT_EQ(tuningDelay(*store).intervalAsDuration(), SettingsStore::tuningInterval);
        tuningDelay(*store).setInterval(1h); // longer than any test takes: a rest ends when the test says so
    }
    void tune(const QString& hex) { store->tune(u"customCPUColorHex"_s, hex); }
    [[nodiscard]] bool isStored(const QByteArray& line) const {
        return settings.text().contains('\n' + line + '\n');
    }

    TemporarySettings settings;
    std::unique_ptr<SettingsStore> store = std::make_unique<SettingsStore>(settings.path());
};

TEST_F(SettingsTuningTest, StoresTheFirstValueAtOnceAndTheLastALittleLater) {
    QSignalSpy changed(store.get(), &SettingsStore::customCPUColorHexChanged);
    tune(u"#000001"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#000001"));
    for (int step = 2; step < 10; ++step)
        tune(u"#00000%1"_s.arg(step));
    EXPECT_EQ(changed.count(), 9) << "whoever shows it follows at once";
    EXPECT_EQ(store->customCPUColorHex(), u"#000009"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#000001"));
    endNow(tuningDelay(*store));
    EXPECT_TRUE(isStored("customCPUColorHex=#000009"));
    EXPECT_EQ(store->customCPUColorHex(), u"#000009"_s);
}

TEST_F(SettingsTuningTest, StoresAValueAtOnceAfterARest) {
    tune(u"#000001"_s);
    endNow(tuningDelay(*store));
    tune(u"#000002"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#000002"));
}

TEST_F(SettingsTuningTest, StoresWhatIsDueWithAChoice) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    store->setUseFahrenheit(true);
    EXPECT_TRUE(isStored("useFahrenheit=true"));
    EXPECT_TRUE(isStored("customCPUColorHex=#000002"));
}

TEST_F(SettingsTuningTest, StoresAChoiceAtOnceThatAnObserverMakes) {
    QObject::connect(store.get(), &SettingsStore::customCPUColorHexChanged, store.get(),
                     [&] { store->setUseCustomCPUColor(true); });
    tune(u"#000001"_s);
    EXPECT_TRUE(isStored("useCustomCPUColor=true"));
}

TEST_F(SettingsTuningTest, StoresWhatIsDueInTheEnd) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    store.reset();
    EXPECT_TRUE(isStored("customCPUColorHex=#000002"));
}

TEST_F(SettingsTuningTest, KeepsWhatIsDueWhenItReadsItsOwnWrite) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    awaitReading(*store);
    EXPECT_EQ(store->customCPUColorHex(), u"#000002"_s);
    EXPECT_TRUE(store->saveError().isEmpty()) << "what is not stored yet did not fail";
}

TEST_F(SettingsTuningTest, FollowsSomeoneElseWhoStoresTheSameSettingMeanwhile) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    settings.replaceByRename("[General]\ncustomCPUColorHex=#FFFFFF\n");
    awaitReading(*store);
    endNow(tuningDelay(*store));
    EXPECT_EQ(store->customCPUColorHex(), u"#FFFFFF"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#FFFFFF"));
}

TEST_F(SettingsTuningTest, TakesNothingThatIsNotLegal) {
    store->tune(u"updateInterval"_s, -1.0);
    EXPECT_EQ(store->updateInterval(), 3);
    store->setUseFahrenheit(true);
    EXPECT_TRUE(isStored("useFahrenheit=true")) << "nothing was left to be tuned";
}

} // namespace
} // namespace orvelle
