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
        tuningDelay(*store).setInterval(1h); // longer than any test takes: the test ends the pause
    }
    void tune(const QString& hex) { store->tune(u"customCPUColorHex"_s, hex); }
    [[nodiscard]] bool isStored(const QByteArray& line) const {
        return settings.text().contains('\n' + line + '\n');
    }

    TemporarySettings settings;
    std::unique_ptr<SettingsStore> store = std::make_unique<SettingsStore>(settings.path());
};

TEST_F(SettingsTuningTest, StoresTheFirstValueAtOnceAndTheLastAfterADelay) {
    QSignalSpy changed(store.get(), &SettingsStore::customCPUColorHexChanged);
    tune(u"#000001"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#000001"));
    for (int step = 2; step < 10; ++step)
        tune(u"#00000%1"_s.arg(step));
    EXPECT_EQ(changed.count(), 9) << "observers follow at once";
    EXPECT_EQ(store->customCPUColorHex(), u"#000009"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#000001"));
    endNow(tuningDelay(*store));
    EXPECT_TRUE(isStored("customCPUColorHex=#000009"));
    EXPECT_EQ(store->customCPUColorHex(), u"#000009"_s);
}

TEST_F(SettingsTuningTest, StoresAValueAtOnceAfterThePause) {
    tune(u"#000001"_s);
    endNow(tuningDelay(*store));
    tune(u"#000002"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#000002"));
}

TEST_F(SettingsTuningTest, StoresAPendingValueTogetherWithAnotherSetting) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    store->setUseFahrenheit(true);
    EXPECT_TRUE(isStored("useFahrenheit=true"));
    EXPECT_TRUE(isStored("customCPUColorHex=#000002"));
}

TEST_F(SettingsTuningTest, StoresAnObserversChangeAtOnce) {
    QObject::connect(store.get(), &SettingsStore::customCPUColorHexChanged, store.get(),
                     [&] { store->setUseCustomCPUColor(true); });
    tune(u"#000001"_s);
    EXPECT_TRUE(isStored("useCustomCPUColor=true"));
}

TEST_F(SettingsTuningTest, StoresAPendingValueWhenItIsDestroyed) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    store.reset();
    EXPECT_TRUE(isStored("customCPUColorHex=#000002"));
}

TEST_F(SettingsTuningTest, KeepsAPendingValueWhenItReadsItsOwnWrite) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    awaitReading(*store);
    EXPECT_EQ(store->customCPUColorHex(), u"#000002"_s);
    EXPECT_TRUE(store->saveError().isEmpty()) << "a pending value is no failure";
}

TEST_F(SettingsTuningTest, FollowsAnotherProgramThatStoresTheSameSettingMeanwhile) {
    tune(u"#000001"_s);
    tune(u"#000002"_s);
    settings.replaceByRename("[General]\ncustomCPUColorHex=#FFFFFF\n");
    awaitReading(*store);
    endNow(tuningDelay(*store));
    EXPECT_EQ(store->customCPUColorHex(), u"#FFFFFF"_s);
    EXPECT_TRUE(isStored("customCPUColorHex=#FFFFFF"));
}

TEST_F(SettingsTuningTest, RejectsAnIllegalValue) {
    store->tune(u"updateInterval"_s, -1.0);
    EXPECT_EQ(store->updateInterval(), 3);
    store->setUseFahrenheit(true);
    EXPECT_TRUE(isStored("useFahrenheit=true")) << "the rejected value is not pending";
}

} // namespace
} // namespace orvelle
