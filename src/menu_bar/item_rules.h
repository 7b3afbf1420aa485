#pragma once

#include <QColor>
#include <QList>

/// Rules that the menu-bar items share.
namespace orvelle {

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
