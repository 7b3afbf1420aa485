#pragma once

#include <QObject>

/// The styles that the settings window, the menu-bar items and the charts share. Each is stored by the name
/// of its case. The settings window offers the cases in this order.
namespace orvelle {
Q_NAMESPACE

/// How the menu-bar items draw their values.
enum class MenuBarDisplayStyle { miniBars, textOnly, iconAndText, sparkline, dotIndicator };
Q_ENUM_NS(MenuBarDisplayStyle)

enum class GraphLineStyle { smooth, sharp, stepped, dotted };
Q_ENUM_NS(GraphLineStyle)

enum class GraphFillStyle { gradient, solid, none, striped };
Q_ENUM_NS(GraphFillStyle)

enum class BarChartStyle { rounded, square, pill, thinLine };
Q_ENUM_NS(BarChartStyle)

enum class RingChartStyle { fullRing, halfGauge, arcGauge, pieChart };
Q_ENUM_NS(RingChartStyle)

enum class AnimationSpeed { slow, normal, fast, instant };
Q_ENUM_NS(AnimationSpeed)

enum class GlowIntensity { none, subtle, medium, intense };
Q_ENUM_NS(GlowIntensity)

} // namespace orvelle
