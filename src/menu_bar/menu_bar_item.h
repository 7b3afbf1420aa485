#pragma once

#include "menu_bar/item_scene.h"
#include "settings/module_table.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"

#include <utility>

/// What the menu-bar items of all modules share: where their values come from, the nodes that their scenes
/// are made of, and the rules by which they show a level or a rate.
namespace orvelle {

/// An item shows the values of the module's monitor in the style and the colours that the user chose. What it
/// refers to must outlive it.
template <ModuleId module, class Monitor>
class MenuBarItem {
public:
    MenuBarItem(const Monitor& monitor, const SettingsStore& settings, const ThemeManager& themes)
        : m_monitor(monitor)
        , m_settings(settings)
        , m_themes(themes) {}

protected:
    ~MenuBarItem() = default;

    [[nodiscard]] QColor moduleColor() const { return m_themes.moduleColor(module, m_settings); }
    /// The scene with these words for assistive technology.
    [[nodiscard]] static ItemScene scene(SceneNode picture, QString accessibleText) {
        return {.body = std::move(picture),
                .accessibleName = QString(moduleInfo(module).title),
                .accessibleText = std::move(accessibleText)};
    }

    const Monitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

/// Size of the module's icon and of the value that stands alone; beside a mini chart the value is smaller.
inline constexpr double iconFontSize = 10;
inline constexpr double valueFontSize = 11;
inline constexpr double smallValueFontSize = 10;

[[nodiscard]] SceneNode symbolNode(const QString& name, double fontSize, const QColor& color);

/// The module's icon in the module's colour.
[[nodiscard]] SceneNode iconNode(const QString& name, const QColor& color);

[[nodiscard]] SceneNode textNode(const QString& text, const QFont& font, const QColor& color);

/// A value in the primary label colour, medium and monospaced.
[[nodiscard]] SceneNode valueNode(const QString& text, double fontSize = valueFontSize);

[[nodiscard]] SceneNode dotsNode(const QList<QColor>& colors, double diameter = 4);

/// A bar that is filled from the left up to `fraction`. It eases to its next value, or jumps there.
[[nodiscard]] SceneNode levelBarNode(const QSizeF& size, double cornerRadius, double fraction,
                                     const QColor& color, bool eases);

/// The sparkline of one module's history in the module's colour; `maxValue` 0 scales to the samples.
[[nodiscard]] SceneNode historyNode(const QList<double>& history, const QColor& color, double maxValue,
                                    const QSizeF& size);

/// How many samples of a history the menu bar draws.
inline constexpr qsizetype recentSampleCount = 20;

/// The newest samples of a history, oldest first; a history of at most 20 is used whole.
[[nodiscard]] QList<double> recentSamples(const QList<double>& history);

/// How many of `dotCount` dots are lit at `level`, which is counted in dots: the whole part, from 0 to all. A
/// level that is not finite stops the process, because no monitor publishes one.
[[nodiscard]] qsizetype litDotCount(double level, qsizetype dotCount);

/// `dotCount` dots of one colour, the first `litCount` at full strength, the others at `dimmedOpacity`.
[[nodiscard]] QList<QColor> meterColors(const QColor& color, qsizetype litCount, qsizetype dotCount,
                                        double dimmedOpacity);

/// Whether a rate is worth a lit mark: more than 1024 bytes per second.
[[nodiscard]] bool isActive(double bytesPerSecond);

/// The colour of the dot of one direction: `color`, dimmed to opacity 0.2 while nothing much flows.
[[nodiscard]] QColor activityDotColor(double bytesPerSecond, const QColor& color);

} // namespace orvelle
