#pragma once

#include "settings/module_table.h"
#include "settings/setting.h"
#include "settings/settings_storage.h"
#include "settings/styles.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <vector>

/// Every setting, one line each: its type, its property, which is also its key in the storage, its setter,
/// and its default. The class makes its properties, setters, signals and storage of it by defining SETTING.
/// README.md has a row for each in this order.
//
// clang-format off
#define ORVELLE_SETTINGS \
    /* Whether a module has an item in the menu bar. */ \
    ORVELLE_MODULES(ORVELLE_SHOW_SETTING) \
    /* Seconds between updates, above 0 and at most `maximumIntervalSeconds`. */ \
    SETTING(double,                        updateInterval,      setUpdateInterval,      3.0) \
    /* How the CPU item shows usage. */ \
    SETTING(CPUDisplayMode,                cpuDisplayMode,      setCpuDisplayMode,      CPUDisplayMode::barChart) \
    /* Temperatures are shown in degrees Fahrenheit; they are measured and kept in degrees Celsius. */ \
    SETTING(bool,                          useFahrenheit,       setUseFahrenheit,       false) \
    /* Menu-bar items are drawn compactly. */ \
    SETTING(bool,                          compactMode,         setCompactMode,         false) \
    /* A coarse choice of colours, beside the theme. */ \
    SETTING(ColorTheme,                    colorTheme,          setColorTheme,          ColorTheme::standard) \
    /* `id` of the theme. Any text is kept, also one that names no theme. */ \
    SETTING(QString,                       selectedThemeId,     setSelectedThemeId,     QStringLiteral("midnight")) \
    /* How charts and menu-bar items are drawn. */ \
    SETTING(orvelle::GraphLineStyle,       graphLineStyle,      setGraphLineStyle,      GraphLineStyle::smooth) \
    SETTING(orvelle::GraphFillStyle,       graphFillStyle,      setGraphFillStyle,      GraphFillStyle::gradient) \
    SETTING(orvelle::BarChartStyle,        barChartStyle,       setBarChartStyle,       BarChartStyle::rounded) \
    SETTING(orvelle::RingChartStyle,       ringChartStyle,      setRingChartStyle,      RingChartStyle::fullRing) \
    SETTING(orvelle::MenuBarDisplayStyle,  menuBarDisplayStyle, setMenuBarDisplayStyle, MenuBarDisplayStyle::miniBars) \
    SETTING(orvelle::AnimationSpeed,       animationSpeed,      setAnimationSpeed,      AnimationSpeed::normal) \
    SETTING(orvelle::GlowIntensity,        glowIntensity,       setGlowIntensity,       GlowIntensity::medium) \
    /* Whether a module's own colour replaces the theme's. */ \
    ORVELLE_MODULES(ORVELLE_CUSTOM_COLOR_SWITCH) \
    /* A module's own colour: "#" and six hexadecimal digits, empty when none was chosen. Any other text is kept,
       and the theme's colour applies. */ \
    ORVELLE_MODULES(ORVELLE_CUSTOM_COLOR_SETTING) \
    /* The program starts when the user logs in. */ \
    SETTING(bool,                          launchAtLogin,       setLaunchAtLogin,       false)

#define ORVELLE_SHOW_SETTING(id, Type, Title, color, symbol, width, isShown) \
    SETTING(bool, show##Title, setShow##Title, isShown)
#define ORVELLE_CUSTOM_COLOR_SWITCH(id, Type, Title, color, symbol, width, isShown) \
    SETTING(bool, useCustom##Type##Color, setUseCustom##Type##Color, false)
#define ORVELLE_CUSTOM_COLOR_SETTING(id, Type, Title, color, symbol, width, isShown) \
    SETTING(QString, custom##Type##ColorHex, setCustom##Type##ColorHex, {})
// clang-format on

namespace orvelle {

/// Every preference of the user, each a property that is stored under its own name; `ORVELLE_SETTINGS` lists
/// them. A property reads as its default while nothing legal is stored for it. Setting one stores it at once
/// and, if the value changed, tells the observers, after which `changed()` follows; a value that is not legal
/// is not taken. When another program or a person changes the storage, the properties follow within a moment.
/// Main thread only; reading is as cheap as reading a member.
class SettingsStore : public QObject {
    Q_OBJECT
#define SETTING(Type, name, setName, defaultValue)                                                           \
    Q_PROPERTY(Type name READ name WRITE setName NOTIFY name##Changed)
    ORVELLE_SETTINGS
#undef SETTING
    Q_PROPERTY(QString saveError READ saveError NOTIFY saveErrorChanged)

public:
    enum class CPUDisplayMode { barChart, percentage };
    Q_ENUM(CPUDisplayMode)
    enum class ColorTheme { standard, monochrome, neon };
    Q_ENUM(ColorTheme)

    /// Settings in this storage; the user's own is that of `openUserSettings()`.
    explicit SettingsStore(std::unique_ptr<SettingsStorage> storage, QObject* parent = nullptr);
    /// Settings in an ini file at this path.
    explicit SettingsStore(const QString& filePath, QObject* parent = nullptr);
    ~SettingsStore() override;

    /// Sets the property with this name while the user drags a control. Not every value of a drag is stored:
    /// the first is at once, the last within `tuningInterval`.
    Q_INVOKABLE void tune(const QString& property, const QVariant& value);
    static constexpr std::chrono::milliseconds tuningInterval{500};

#define SETTING(Type, name, setName, defaultValue)                                                           \
    [[nodiscard]] PassedSetting<Type> name() const { return m_##name.value(); }                              \
    void setName(PassedSetting<Type> value) { assign(m_##name, value); }
    ORVELLE_SETTINGS
#undef SETTING

    /// Whether the module has an item in the menu bar.
    [[nodiscard]] bool isShown(ModuleId module) const;

    /// Why a value could not be stored, in a few words for the user; empty when every value is stored. Such a
    /// value holds until the program ends and is stored with the next one that can be. While another program
    /// locks the storage, the store retries; the error appears only when the lock lasts.
    [[nodiscard]] const QString& saveError() const { return m_saveError; }

Q_SIGNALS:
    /// One or more properties changed; follows their own signals.
    void changed();
    void saveErrorChanged();
#define SETTING(Type, name, setName, defaultValue) void name##Changed();
    ORVELLE_SETTINGS
#undef SETTING

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
    /// Reads the storage and announces the differences. An unreadable storage changes nothing.
    void reload();
    [[nodiscard]] QStringList keys() const;

    std::unique_ptr<SettingsStorage> m_storage;
    QTimer m_reloadDelay{this};
    QTimer m_tuningDelay{this}; ///< runs after a value of a drag was saved
    QTimer m_retryDelay{this};  ///< runs while another program locks the storage
    int m_lockedTries = 0;      ///< failed tries since the lock was met
    bool m_isTuning = false;
    bool m_isSaveDue = false; ///< when `m_tuningDelay` ends
    QString m_saveError;

#define SETTING(Type, name, setName, defaultValue)                                                           \
    Setting<Type> m_##name{#name, defaultValue, &SettingsStore::name##Changed};
    ORVELLE_SETTINGS
#undef SETTING

#define SETTING(Type, name, setName, defaultValue) &m_##name,
    /// Every setting, in the order of the list.
    const std::vector<AnySetting*> m_settings{ORVELLE_SETTINGS};
#undef SETTING
};

} // namespace orvelle
