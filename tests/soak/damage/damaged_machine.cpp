#include "damaged_machine.h"

#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "damaged_tree.h"
#include "finding.h"
#include "menu_bar/modules.h"
#include "menu_bar/scene_painter.h"
#include "platform/host.h"
#include "platform/readable_name.h"
#include "platform/replay/fake_sources.h"
#include "probe/published_values.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"

#include <QImage>
#include <QJsonArray>
#include <QPainter>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

namespace orvelle::soak {
namespace {

namespace fs = std::filesystem;

constexpr int cycles = 6; // processes are sampled in the first and in the fourth

/// Copies a tree. Files are shared with the original where the file system can.
void layOver(const fs::path& target, const fs::path& overlay) {
    std::error_code failed;
    fs::create_directories(target, failed);
    for (const fs::directory_entry& entry : fs::directory_iterator(overlay)) {
        const fs::path copy = target / entry.path().filename();
        if (!entry.is_symlink() && entry.is_directory()) {
            if (!fs::is_directory(fs::symlink_status(copy)))
                fs::remove_all(copy, failed);
            layOver(copy, entry.path());
            continue;
        }
        fs::remove_all(copy, failed);
        if (entry.is_symlink())
            fs::copy_symlink(entry.path(), copy, failed);
        else if (fs::create_hard_link(entry.path(), copy, failed); failed)
            fs::copy_file(entry.path(), copy, failed);
    }
}

void checkText(const QString& text) {
    const std::string bytes = text.toStdString();
    require(readableName(bytes) == bytes, "a published text is fit to be shown", bytes);
}

void checkValue(const QJsonValue& value, const QString& name) {
    if (value.isDouble())
        require(std::isfinite(value.toDouble()), "a published number is finite", name.toStdString());
    if (value.isString())
        checkText(value.toString());
    for (const QJsonValue element : value.toArray())
        checkValue(element, name);
    const QJsonObject object = value.toObject();
    for (auto field = object.begin(); field != object.end(); ++field)
        checkValue(field.value(), field.key());
}

void checkRatio(double ratio, const char* name) {
    require(ratio >= 0 && ratio <= 1, "a ratio is from 0 to 1", name);
}

/// What the charts and texts rely on, whatever a machine says.
void checkBounds(SystemMonitor& monitor) {
    for (const double usage : monitor.cpu().usageHistory())
        checkRatio(usage, "cpu.usageHistory");
    for (const double pressure : monitor.memory().pressureHistory())
        checkRatio(pressure, "memory.pressureHistory");
    const MemoryMonitorInfo& memory = monitor.memory().info();
    require(memory.used <= memory.total && memory.swapUsed <= memory.swapTotal, "what is used is there");
    for (const DiskVolumeInfo& volume : monitor.disk().volumes())
        require(volume.freeSpace <= volume.totalSpace, "what is free is there", volume.id.toStdString());
    for (const double speed : {monitor.disk().diskIO().readSpeed, monitor.disk().diskIO().writeSpeed,
                               monitor.network().totalDownloadSpeed(), monitor.network().totalUploadSpeed()})
        require(speed >= 0, "a speed is not negative");
    const qint64 charge = monitor.battery().battery().currentCapacity;
    require(charge >= 0 && charge <= 100, "a charge is a percentage");
}

void showItems(const ModuleContext& context, Dice& dice) {
    QImage image(400, 44, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(Qt::black);
    QPainter painter(&image);
    for (const ModuleInfo& module : moduleTable) {
        const ItemScene scene = makeScene(module.id, context);
        checkText(scene.accessibleName);
        checkText(scene.accessibleText);
        paintScene(painter, {0, 0, module.width, 22}, scene.body,
                   dice.oneIn(2) ? BarAppearance::dark : BarAppearance::light);
        static_cast<void>(makeIcon(module.id, context));
    }
}

void chooseStyle(SettingsStore& settings, Dice& dice) {
    const QMetaEnum styles = QMetaEnum::fromType<MenuBarDisplayStyle>();
    const auto count = static_cast<std::size_t>(styles.keyCount());
    settings.setMenuBarDisplayStyle(
        static_cast<MenuBarDisplayStyle>(styles.value(static_cast<int>(dice.below(count)))));
    settings.setCompactMode(dice.oneIn(2));
    settings.setUseFahrenheit(dice.oneIn(2));
}

/// Damages a tree in another thread, so that things vanish between being listed and being read.
class DamageMeanwhile {
public:
    DamageMeanwhile(fs::path root, std::uint64_t seed)
        : m_thread([this, root = std::move(root), seed] {
            for (Dice dice(seed); !m_isEnding;)
                damageQuietly(root, dice);
        }) {}
    ~DamageMeanwhile() {
        m_isEnding = true;
        m_thread.join();
    }
    DamageMeanwhile(const DamageMeanwhile&) = delete;
    DamageMeanwhile& operator=(const DamageMeanwhile&) = delete;

private:
    static void damageQuietly(const fs::path& root, Dice& dice) {
        try {
            damageTree(root, dice);
        } catch (const fs::filesystem_error&) {
            std::this_thread::yield(); // a folder has gone while it was listed
        }
    }

    std::atomic<bool> m_isEnding = false;
    std::thread m_thread;
};

fs::path someMachine(const fs::path& fixtures, Dice& dice) {
    std::vector<fs::path> machines;
    for (const fs::directory_entry& entry : fs::directory_iterator(fixtures)) {
        if (entry.is_directory())
            machines.push_back(entry.path());
    }
    std::ranges::sort(machines);
    return dice.pick(machines);
}

} // namespace

void tryDamagedMachine(const fs::path& fixtures, const fs::path& folder, Dice& dice) {
    const fs::path machine = someMachine(fixtures, dice);
    const fs::path root = folder / "machine";
    layOver(root, machine / "1");
    damageTree(root, dice);

    SettingsStore settings(std::make_unique<ReadOnlySettings>());
    const ThemeManager themes(settings);
    FakeClock clock;
    SystemMonitor monitor(makeTreeSources(root, clock.reader()), settings);
    const bool isDamagedMeanwhile = dice.oneIn(4);
    for (int cycle = 0; cycle < cycles; ++cycle) {
        {
            const std::uint64_t seed = dice.below(1U << 30U);
            const auto meanwhile =
                isDamagedMeanwhile ? std::make_unique<DamageMeanwhile>(root, seed) : nullptr;
            monitor.updateCycle();
        }
        checkValue(publishedValues(monitor), {});
        checkBounds(monitor);
        chooseStyle(settings, dice);
        showItems({monitor, settings, themes}, dice);
        clock.advance(std::chrono::seconds(3));
        layOver(root, machine / (dice.oneIn(2) ? "1" : "2"));
        damageTree(root, dice);
    }
}

} // namespace orvelle::soak
