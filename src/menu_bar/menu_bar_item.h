#pragma once

#include "menu_bar/icon_scene.h"
#include "settings/module_table.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"

#include <utility>

/// Shared parts of all menu-bar items: the sources of their values, the nodes of their scenes, and the rules
/// for showing a level or a rate.
namespace orvelle {

/// An item shows the values of a module's monitor in the user's style and colours. The referenced objects
/// must outlive the item.
template <ModuleId module, class Monitor>
class MenuBarItem {
public:
    MenuBarItem(const Monitor& monitor, const SettingsStore& settings, const ThemeManager& themes)
        : m_monitor(monitor)
        , m_settings(settings)
        , m_themes(themes) {}

    /// The item as a square: the module's symbol, unless the item has a better one.
    [[nodiscard]] IconScene icon() const {
        return {.body = iconSymbol(QString(moduleInfo(module).symbol), moduleColor())};
    }

protected:
    ~MenuBarItem() = default;

    [[nodiscard]] QColor moduleColor() const { return m_themes.moduleColor(module, m_settings); }
    /// Adds these words for assistive technology to the scene.
    [[nodiscard]] static ItemScene scene(SceneNode picture, QString accessibleText) {
        return {.body = std::move(picture),
                .accessibleName = QString(moduleInfo(module).title),
                .accessibleText = std::move(accessibleText)};
    }

    const Monitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

/// Size of the module's icon, and of a value without a chart. Beside a mini chart the value is smaller.
inline constexpr double iconFontSize = 10;
inline constexpr double valueFontSize = 11;
inline constexpr double smallValueFontSize = 10;

[[nodiscard]] SceneNode symbolNode(const QString& name, double fontSize, const QColor& color);

/// The module's icon in the module's colour.
[[nodiscard]] SceneNode iconNode(const QString& name, const QColor& color);

[[nodiscard]] SceneNode textNode(const QString& text, const QFont& font, const TextColor& color);

/// A value in the primary label colour, medium and monospaced.
[[nodiscard]] SceneNode valueNode(const QString& text, double fontSize = valueFontSize);

[[nodiscard]] SceneNode dotsNode(const QList<QColor>& colors, double diameter = 4);

/// A bar filled from the left up to `fraction`. It eases or jumps to its next value.
[[nodiscard]] SceneNode levelBarNode(const QSizeF& size, double cornerRadius, double fraction,
                                     const QColor& color, bool eases);

/// The sparkline of one module's history in the module's colour; `maxValue` 0 scales to the samples.
[[nodiscard]] SceneNode historyNode(const QList<double>& history, const QColor& color, double maxValue,
                                    const QSizeF& size);

/// The widest text of `formatPercent`.
[[nodiscard]] QString widestPercent();

/// The number of history samples that the menu bar draws.
inline constexpr qsizetype recentSampleCount = 20;

/// The newest samples of a history, oldest first; all of them if there are at most 20.
[[nodiscard]] QList<double> recentSamples(const QList<double>& history);

/// The number of lit dots at `level`, a number of dots: its whole part, clamped to 0 to `dotCount`. A level
/// that is not finite stops the process, because no monitor publishes one.
[[nodiscard]] qsizetype litDotCount(double level, qsizetype dotCount);

/// `dotCount` dots of one colour: the first `litCount` at full strength, the others at `dimmedOpacity`.
[[nodiscard]] QList<QColor> meterColors(const QColor& color, qsizetype litCount, qsizetype dotCount,
                                        double dimmedOpacity);

/// Whether a rate lights its mark: above 1024 bytes per second.
[[nodiscard]] bool isActive(double bytesPerSecond);

/// The colour of one direction's dot: `color`, dimmed to opacity 0.2 below that rate.
[[nodiscard]] QColor activityDotColor(double bytesPerSecond, const QColor& color);

} // namespace orvelle
