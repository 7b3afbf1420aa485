#pragma once

#include "settings/setting.h"
#include "settings/settings_storage.h"
#include "settings/styles.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <array>
#include <chrono>
#include <memory>

namespace orvelle {

/// Every preference of the user, each a property that is stored under its own name. A property reads as its
/// default while nothing legal is stored for it. Setting one stores it at once and, if the value changed,
/// tells the observers, after which `changed()` follows; a value that is not legal is not taken. When another
/// program or a person changes the storage, the properties follow within a moment. Main thread only; reading
/// is as cheap as reading a member.
class SettingsStore : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showCPU READ showCPU WRITE setShowCPU NOTIFY showCPUChanged)
    Q_PROPERTY(bool showMemory READ showMemory WRITE setShowMemory NOTIFY showMemoryChanged)
    Q_PROPERTY(bool showNetwork READ showNetwork WRITE setShowNetwork NOTIFY showNetworkChanged)
    Q_PROPERTY(bool showDisk READ showDisk WRITE setShowDisk NOTIFY showDiskChanged)
    Q_PROPERTY(bool showBattery READ showBattery WRITE setShowBattery NOTIFY showBatteryChanged)
    Q_PROPERTY(bool showSensors READ showSensors WRITE setShowSensors NOTIFY showSensorsChanged)
    Q_PROPERTY(double updateInterval READ updateInterval WRITE setUpdateInterval NOTIFY updateIntervalChanged)
    Q_PROPERTY(CPUDisplayMode cpuDisplayMode READ cpuDisplayMode WRITE setCpuDisplayMode NOTIFY
                   cpuDisplayModeChanged)
    Q_PROPERTY(bool useFahrenheit READ useFahrenheit WRITE setUseFahrenheit NOTIFY useFahrenheitChanged)
    Q_PROPERTY(bool compactMode READ compactMode WRITE setCompactMode NOTIFY compactModeChanged)
    Q_PROPERTY(ColorTheme colorTheme READ colorTheme WRITE setColorTheme NOTIFY colorThemeChanged)
    Q_PROPERTY(
        QString selectedThemeId READ selectedThemeId WRITE setSelectedThemeId NOTIFY selectedThemeIdChanged)
    Q_PROPERTY(orvelle::GraphLineStyle graphLineStyle READ graphLineStyle WRITE setGraphLineStyle NOTIFY
                   graphLineStyleChanged)
    Q_PROPERTY(orvelle::GraphFillStyle graphFillStyle READ graphFillStyle WRITE setGraphFillStyle NOTIFY
                   graphFillStyleChanged)
    Q_PROPERTY(orvelle::BarChartStyle barChartStyle READ barChartStyle WRITE setBarChartStyle NOTIFY
                   barChartStyleChanged)
    Q_PROPERTY(orvelle::RingChartStyle ringChartStyle READ ringChartStyle WRITE setRingChartStyle NOTIFY
                   ringChartStyleChanged)
    Q_PROPERTY(orvelle::MenuBarDisplayStyle menuBarDisplayStyle READ menuBarDisplayStyle WRITE
                   setMenuBarDisplayStyle NOTIFY menuBarDisplayStyleChanged)
    Q_PROPERTY(orvelle::AnimationSpeed animationSpeed READ animationSpeed WRITE setAnimationSpeed NOTIFY
                   animationSpeedChanged)
    Q_PROPERTY(orvelle::GlowIntensity glowIntensity READ glowIntensity WRITE setGlowIntensity NOTIFY
                   glowIntensityChanged)
    Q_PROPERTY(bool useCustomCPUColor READ useCustomCPUColor WRITE setUseCustomCPUColor NOTIFY
                   useCustomCPUColorChanged)
    Q_PROPERTY(bool useCustomMemoryColor READ useCustomMemoryColor WRITE setUseCustomMemoryColor NOTIFY
                   useCustomMemoryColorChanged)
    Q_PROPERTY(bool useCustomNetworkColor READ useCustomNetworkColor WRITE setUseCustomNetworkColor NOTIFY
                   useCustomNetworkColorChanged)
    Q_PROPERTY(bool useCustomDiskColor READ useCustomDiskColor WRITE setUseCustomDiskColor NOTIFY
                   useCustomDiskColorChanged)
    Q_PROPERTY(bool useCustomBatteryColor READ useCustomBatteryColor WRITE setUseCustomBatteryColor NOTIFY
                   useCustomBatteryColorChanged)
    Q_PROPERTY(bool useCustomSensorColor READ useCustomSensorColor WRITE setUseCustomSensorColor NOTIFY
                   useCustomSensorColorChanged)
    Q_PROPERTY(QString customCPUColorHex READ customCPUColorHex WRITE setCustomCPUColorHex NOTIFY
                   customCPUColorHexChanged)
    Q_PROPERTY(QString customMemoryColorHex READ customMemoryColorHex WRITE setCustomMemoryColorHex NOTIFY
                   customMemoryColorHexChanged)
    Q_PROPERTY(QString customNetworkColorHex READ customNetworkColorHex WRITE setCustomNetworkColorHex NOTIFY
                   customNetworkColorHexChanged)
    Q_PROPERTY(QString customDiskColorHex READ customDiskColorHex WRITE setCustomDiskColorHex NOTIFY
                   customDiskColorHexChanged)
    Q_PROPERTY(QString customBatteryColorHex READ customBatteryColorHex WRITE setCustomBatteryColorHex NOTIFY
                   customBatteryColorHexChanged)
    Q_PROPERTY(QString customSensorColorHex READ customSensorColorHex WRITE setCustomSensorColorHex NOTIFY
                   customSensorColorHexChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(QString saveError READ saveError NOTIFY saveErrorChanged)

public:
    enum class CPUDisplayMode { barChart, percentage };
    Q_ENUM(CPUDisplayMode)
    enum class ColorTheme { standard, monochrome, neon };
    Q_ENUM(ColorTheme)

    /// The settings that are kept there, as in the user's place for them: see `openUserSettings`.
    explicit SettingsStore(std::unique_ptr<SettingsStorage> storage, QObject* parent = nullptr);
    /// Those in an ini file of one's own.
    explicit SettingsStore(const QString& filePath, QObject* parent = nullptr);
    ~SettingsStore() override;

    /// Sets the property with this name to a value that follows the user's hand, as under a slider. Of many
    /// in quick succession only some are stored: the first at once, the last within `tuningInterval` at most.
    Q_INVOKABLE void tune(const QString& property, const QVariant& value);
    static constexpr std::chrono::milliseconds tuningInterval{500};

    /// Which modules have an item in the menu bar.
    [[nodiscard]] bool showCPU() const { return m_showCPU.value(); }
    void setShowCPU(bool value) { assign(m_showCPU, value); }
    [[nodiscard]] bool showMemory() const { return m_showMemory.value(); }
    void setShowMemory(bool value) { assign(m_showMemory, value); }
    [[nodiscard]] bool showNetwork() const { return m_showNetwork.value(); }
    void setShowNetwork(bool value) { assign(m_showNetwork, value); }
    [[nodiscard]] bool showDisk() const { return m_showDisk.value(); }
    void setShowDisk(bool value) { assign(m_showDisk, value); }
    [[nodiscard]] bool showBattery() const { return m_showBattery.value(); }
    void setShowBattery(bool value) { assign(m_showBattery, value); }
    [[nodiscard]] bool showSensors() const { return m_showSensors.value(); }
    void setShowSensors(bool value) { assign(m_showSensors, value); }

    /// Seconds between updates, more than 0 and at most `maximumIntervalSeconds`.
    [[nodiscard]] double updateInterval() const { return m_updateInterval.value(); }
    void setUpdateInterval(double value) { assign(m_updateInterval, value); }

    /// How the CPU item shows usage.
    [[nodiscard]] CPUDisplayMode cpuDisplayMode() const { return m_cpuDisplayMode.value(); }
    void setCpuDisplayMode(CPUDisplayMode value) { assign(m_cpuDisplayMode, value); }

    /// Temperatures are shown in degrees Fahrenheit; they are measured and kept in degrees Celsius.
    [[nodiscard]] bool useFahrenheit() const { return m_useFahrenheit.value(); }
    void setUseFahrenheit(bool value) { assign(m_useFahrenheit, value); }

    /// Menu-bar items are drawn compactly.
    [[nodiscard]] bool compactMode() const { return m_compactMode.value(); }
    void setCompactMode(bool value) { assign(m_compactMode, value); }

    /// Coarse choice of colours, beside the theme.
    [[nodiscard]] ColorTheme colorTheme() const { return m_colorTheme.value(); }
    void setColorTheme(ColorTheme value) { assign(m_colorTheme, value); }

    /// `id` of the theme; any text may be stored, also one that names no theme.
    [[nodiscard]] const QString& selectedThemeId() const { return m_selectedThemeId.value(); }
    void setSelectedThemeId(const QString& value) { assign(m_selectedThemeId, value); }

    /// How charts and menu-bar items are drawn.
    [[nodiscard]] GraphLineStyle graphLineStyle() const { return m_graphLineStyle.value(); }
    void setGraphLineStyle(GraphLineStyle value) { assign(m_graphLineStyle, value); }
    [[nodiscard]] GraphFillStyle graphFillStyle() const { return m_graphFillStyle.value(); }
    void setGraphFillStyle(GraphFillStyle value) { assign(m_graphFillStyle, value); }
    [[nodiscard]] BarChartStyle barChartStyle() const { return m_barChartStyle.value(); }
    void setBarChartStyle(BarChartStyle value) { assign(m_barChartStyle, value); }
    [[nodiscard]] RingChartStyle ringChartStyle() const { return m_ringChartStyle.value(); }
    void setRingChartStyle(RingChartStyle value) { assign(m_ringChartStyle, value); }
    [[nodiscard]] MenuBarDisplayStyle menuBarDisplayStyle() const { return m_menuBarDisplayStyle.value(); }
    void setMenuBarDisplayStyle(MenuBarDisplayStyle value) { assign(m_menuBarDisplayStyle, value); }
    [[nodiscard]] AnimationSpeed animationSpeed() const { return m_animationSpeed.value(); }
    void setAnimationSpeed(AnimationSpeed value) { assign(m_animationSpeed, value); }
    [[nodiscard]] GlowIntensity glowIntensity() const { return m_glowIntensity.value(); }
    void setGlowIntensity(GlowIntensity value) { assign(m_glowIntensity, value); }

    /// Whether a module's own colour replaces that of the theme.
    [[nodiscard]] bool useCustomCPUColor() const { return m_useCustomCPUColor.value(); }
    void setUseCustomCPUColor(bool value) { assign(m_useCustomCPUColor, value); }
    [[nodiscard]] bool useCustomMemoryColor() const { return m_useCustomMemoryColor.value(); }
    void setUseCustomMemoryColor(bool value) { assign(m_useCustomMemoryColor, value); }
    [[nodiscard]] bool useCustomNetworkColor() const { return m_useCustomNetworkColor.value(); }
    void setUseCustomNetworkColor(bool value) { assign(m_useCustomNetworkColor, value); }
    [[nodiscard]] bool useCustomDiskColor() const { return m_useCustomDiskColor.value(); }
    void setUseCustomDiskColor(bool value) { assign(m_useCustomDiskColor, value); }
    [[nodiscard]] bool useCustomBatteryColor() const { return m_useCustomBatteryColor.value(); }
    void setUseCustomBatteryColor(bool value) { assign(m_useCustomBatteryColor, value); }
    [[nodiscard]] bool useCustomSensorColor() const { return m_useCustomSensorColor.value(); }
    void setUseCustomSensorColor(bool value) { assign(m_useCustomSensorColor, value); }

    /// The modules' own colours: "#" and six hexadecimal digits, empty when none was chosen. A text that is
    /// no colour is kept, and the theme's colour applies.
    [[nodiscard]] const QString& customCPUColorHex() const { return m_customCPUColorHex.value(); }
    void setCustomCPUColorHex(const QString& value) { assign(m_customCPUColorHex, value); }
    [[nodiscard]] const QString& customMemoryColorHex() const { return m_customMemoryColorHex.value(); }
    void setCustomMemoryColorHex(const QString& value) { assign(m_customMemoryColorHex, value); }
    [[nodiscard]] const QString& customNetworkColorHex() const { return m_customNetworkColorHex.value(); }
    void setCustomNetworkColorHex(const QString& value) { assign(m_customNetworkColorHex, value); }
    [[nodiscard]] const QString& customDiskColorHex() const { return m_customDiskColorHex.value(); }
    void setCustomDiskColorHex(const QString& value) { assign(m_customDiskColorHex, value); }
    [[nodiscard]] const QString& customBatteryColorHex() const { return m_customBatteryColorHex.value(); }
    void setCustomBatteryColorHex(const QString& value) { assign(m_customBatteryColorHex, value); }
    [[nodiscard]] const QString& customSensorColorHex() const { return m_customSensorColorHex.value(); }
    void setCustomSensorColorHex(const QString& value) { assign(m_customSensorColorHex, value); }

    /// The program starts when the user logs in.
    [[nodiscard]] bool launchAtLogin() const { return m_launchAtLogin.value(); }
    void setLaunchAtLogin(bool value) { assign(m_launchAtLogin, value); }

    /// Why a value that was set could not be stored, in a few words for the user; empty when all are. The
    /// value holds until the program ends and is stored together with the next one that can be. While another
    /// program has the storage for itself, saving is tried again and again; this tells of it when that lasts.
    [[nodiscard]] const QString& saveError() const { return m_saveError; }

Q_SIGNALS:
    /// One or more properties changed; follows their own signals.
    void changed();
    void saveErrorChanged();
    void showCPUChanged();
    void showMemoryChanged();
    void showNetworkChanged();
    void showDiskChanged();
    void showBatteryChanged();
    void showSensorsChanged();
    void updateIntervalChanged();
    void cpuDisplayModeChanged();
    void useFahrenheitChanged();
    void compactModeChanged();
    void colorThemeChanged();
    void selectedThemeIdChanged();
    void graphLineStyleChanged();
    void graphFillStyleChanged();
    void barChartStyleChanged();
    void ringChartStyleChanged();
    void menuBarDisplayStyleChanged();
    void animationSpeedChanged();
    void glowIntensityChanged();
    void useCustomCPUColorChanged();
    void useCustomMemoryColorChanged();
    void useCustomNetworkColorChanged();
    void useCustomDiskColorChanged();
    void useCustomBatteryColorChanged();
    void useCustomSensorColorChanged();
    void customCPUColorHexChanged();
    void customMemoryColorHexChanged();
    void customNetworkColorHexChanged();
    void customDiskColorHexChanged();
    void customBatteryColorHexChanged();
    void customSensorColorHexChanged();
    void launchAtLoginChanged();

private:
    template <class Value>
    void assign(Setting<Value>& setting, const Value& value) {
        const bool isChanged = setting.assign(value);
        finishAssignment(setting, isChanged);
    }
    void finishAssignment(const AnySetting& setting, bool isChanged);
    void saveSoon();
    void save();
    /// Writes what is not stored yet.
    SaveResult store();
    void retry();
    void updateSaveError();
    /// Takes over what changed in the storage; nothing when it cannot be read.
    void reload();
    void watch();

    std::unique_ptr<SettingsStorage> m_storage;
    QFileSystemWatcher m_watcher;
    QTimer m_reloadDelay{this};
    QTimer m_tuningDelay{this}; ///< runs for a while after a tuned value was saved
    QTimer m_retryDelay{this};  ///< runs while another program has the storage for itself
    int m_lockedTries = 0;      ///< how often saving was tried in vain since
    bool m_isTuning = false;
    bool m_isSaveDue = false; ///< when `m_tuningDelay` ends
    QString m_saveError;

    Setting<bool> m_showCPU{"showCPU", true, &SettingsStore::showCPUChanged};
    Setting<bool> m_showMemory{"showMemory", true, &SettingsStore::showMemoryChanged};
    Setting<bool> m_showNetwork{"showNetwork", true, &SettingsStore::showNetworkChanged};
    Setting<bool> m_showDisk{"showDisk", false, &SettingsStore::showDiskChanged};
    Setting<bool> m_showBattery{"showBattery", true, &SettingsStore::showBatteryChanged};
    Setting<bool> m_showSensors{"showSensors", false, &SettingsStore::showSensorsChanged};
    Setting<double> m_updateInterval{"updateInterval", 3.0, &SettingsStore::updateIntervalChanged};
    Setting<CPUDisplayMode> m_cpuDisplayMode{"cpuDisplayMode", CPUDisplayMode::barChart,
                                             &SettingsStore::cpuDisplayModeChanged};
    Setting<bool> m_useFahrenheit{"useFahrenheit", false, &SettingsStore::useFahrenheitChanged};
    Setting<bool> m_compactMode{"compactMode", false, &SettingsStore::compactModeChanged};
    Setting<ColorTheme> m_colorTheme{"colorTheme", ColorTheme::standard, &SettingsStore::colorThemeChanged};
    Setting<QString> m_selectedThemeId{"selectedThemeId", QStringLiteral("midnight"),
                                       &SettingsStore::selectedThemeIdChanged};
    Setting<GraphLineStyle> m_graphLineStyle{"graphLineStyle", GraphLineStyle::smooth,
                                             &SettingsStore::graphLineStyleChanged};
    Setting<GraphFillStyle> m_graphFillStyle{"graphFillStyle", GraphFillStyle::gradient,
                                             &SettingsStore::graphFillStyleChanged};
    Setting<BarChartStyle> m_barChartStyle{"barChartStyle", BarChartStyle::rounded,
                                           &SettingsStore::barChartStyleChanged};
    Setting<RingChartStyle> m_ringChartStyle{"ringChartStyle", RingChartStyle::fullRing,
                                             &SettingsStore::ringChartStyleChanged};
    Setting<MenuBarDisplayStyle> m_menuBarDisplayStyle{"menuBarDisplayStyle", MenuBarDisplayStyle::miniBars,
                                                       &SettingsStore::menuBarDisplayStyleChanged};
    Setting<AnimationSpeed> m_animationSpeed{"animationSpeed", AnimationSpeed::normal,
                                             &SettingsStore::animationSpeedChanged};
    Setting<GlowIntensity> m_glowIntensity{"glowIntensity", GlowIntensity::medium,
                                           &SettingsStore::glowIntensityChanged};
    Setting<bool> m_useCustomCPUColor{"useCustomCPUColor", false, &SettingsStore::useCustomCPUColorChanged};
    Setting<bool> m_useCustomMemoryColor{"useCustomMemoryColor", false,
                                         &SettingsStore::useCustomMemoryColorChanged};
    Setting<bool> m_useCustomNetworkColor{"useCustomNetworkColor", false,
                                          &SettingsStore::useCustomNetworkColorChanged};
    Setting<bool> m_useCustomDiskColor{"useCustomDiskColor", false,
                                       &SettingsStore::useCustomDiskColorChanged};
    Setting<bool> m_useCustomBatteryColor{"useCustomBatteryColor", false,
                                          &SettingsStore::useCustomBatteryColorChanged};
    Setting<bool> m_useCustomSensorColor{"useCustomSensorColor", false,
                                         &SettingsStore::useCustomSensorColorChanged};
    Setting<QString> m_customCPUColorHex{"customCPUColorHex", {}, &SettingsStore::customCPUColorHexChanged};
    Setting<QString> m_customMemoryColorHex{
        "customMemoryColorHex", {}, &SettingsStore::customMemoryColorHexChanged};
    Setting<QString> m_customNetworkColorHex{
        "customNetworkColorHex", {}, &SettingsStore::customNetworkColorHexChanged};
    Setting<QString> m_customDiskColorHex{
        "customDiskColorHex", {}, &SettingsStore::customDiskColorHexChanged};
    Setting<QString> m_customBatteryColorHex{
        "customBatteryColorHex", {}, &SettingsStore::customBatteryColorHexChanged};
    Setting<QString> m_customSensorColorHex{
        "customSensorColorHex", {}, &SettingsStore::customSensorColorHexChanged};
    Setting<bool> m_launchAtLogin{"launchAtLogin", false, &SettingsStore::launchAtLoginChanged};

    const std::array<AnySetting*, 32> m_settings;
};

} // namespace orvelle
