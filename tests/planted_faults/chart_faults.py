"""Faults in the charts and in their numbers."""

from planting import Fault

BARS = ("test_charts", "*Bar*")
RINGS = ("test_charts", "*Ring*")
GRAPHS = ("test_charts", "*Line*:*Dash*")
PICTURES = ("test_golden_pictures", "*Bar*:*Line*:*Spark*:*Ring*:*Gauge*")
BAR = "src/charts/animated_bar_chart.cpp"
RING = "src/charts/ring_charts.cpp"
GRAPH = "src/charts/animated_line_graph.cpp"
GAUGE = "src/charts/temperature_gauge.cpp"
SPARKLINE = "src/charts/sparkline_view.cpp"

CHART_FAULTS = [
    Fault("bars look alike at every scale", "src/charts/bar_look.cpp",
          "std::abs(first.ratio - second.ratio) * fullPixels", "std::abs(first.ratio - second.ratio) * 100",
          "test_charts", "BarLook.*"),
    Fault("a bar in motion is painted in every frame", "src/windows/charts/animated_bar_chart_item.cpp",
          "return !looksAlike(shownLooks(), m_painted, height() * pixelsPerPoint);", "return pixelsPerPoint > 0;",
          "test_windows_charts", "BarChartItem.*"),
    Fault("a bar's glow lies behind it", BAR, "glowRise = 1;", "glowRise = 0;", *BARS),
    Fault("a bar's glow sinks", BAR, "glowRise = 1;", "glowRise = -1;", *BARS),
    Fault("a bar fades upwards", BAR, "fade.setColorAt(0, withOpacity(color, topOpacity));",
          "fade.setColorAt(0, withOpacity(color, bottomOpacity));", *BARS),
    Fault("a thin line glows as far as a bar", BAR,
          "glowRadius(intensity) / 2 : glowRadius(intensity)", "glowRadius(intensity) : glowRadius(intensity)", *BARS),
    Fault("segments end in round caps", RING, "Qt::FlatCap", "Qt::RoundCap", *RINGS),
    Fault("segments end in square caps", RING, "Qt::FlatCap", "Qt::SquareCap", *RINGS),
    Fault("segments begin at three o'clock", RING, "firstSegmentStart = -90", "firstSegmentStart = 0", *RINGS),
    Fault("segments are drawn from the last", RING, "segmentTrim(angles[index], animatedProgress)",
          "segmentTrim(angles[segments.size() - 1 - index], animatedProgress)", *RINGS),
    Fault("rings end in butt caps", RING, "Qt::RoundCap", "Qt::FlatCap", *RINGS),
    Fault("the hub of a pie is larger", RING, "hubShare = 0.6", "hubShare = 0.65", *PICTURES),
    Fault("a gauge begins in its full colour", RING, "gaugeStartOpacity = 0.7", "gaugeStartOpacity = 0.8", *PICTURES),
    Fault("a ring's label is smaller", RING, "labelShare = 0.22", "labelShare = 0.2", *PICTURES),
    Fault("the grid is drawn under the line", GRAPH,
          "    drawLine(painter, line, graph, canvas);\n    drawGrid(painter, graph.gridColor, size);\n",
          "    drawGrid(painter, graph.gridColor, size);\n    drawLine(painter, line, graph, canvas);\n", *GRAPHS),
    Fault("a line's glow is as wide as the line", GRAPH, "glowExtraWidth = 2", "glowExtraWidth = 0", *PICTURES),
    Fault("a fill fades to nothing", GRAPH, "gradientBottomOpacity = 0.05", "gradientBottomOpacity = 0", *GRAPHS),
    Fault("dots and gaps are exchanged", GRAPH, ".dash = 3, .gap = 4", ".dash = 4, .gap = 3", *GRAPHS),
    Fault("the gauge's track is lighter", GAUGE, "trackOpacity = 0.08", "trackOpacity = 0.12", "test_charts",
          "*Gauge*"),
    Fault("the gauge goes from yellow over green", GAUGE,
          "{{0, SystemColors::green},\n            {1.0 / 3, SystemColors::yellow},",
          "{{0, SystemColors::yellow},\n            {1.0 / 3, SystemColors::green},", "test_charts", "*Gauge*"),
    Fault("the gauge's stroke is thinner", GAUGE, "strokeWidth = 6", "strokeWidth = 5", *PICTURES),
    Fault("the front sparkline's fill is as dense as the other's", SPARKLINE, "topFillOpacity = 0.1;",
          "topFillOpacity = 0.15;", "test_charts", "*Spark*"),
    Fault("the front sparkline is the other one", SPARKLINE,
          "return {layer(bottomData, bottomColor, bottomFillOpacity), layer(topData, topColor, topFillOpacity)};",
          "return {layer(topData, topColor, topFillOpacity), layer(bottomData, bottomColor, bottomFillOpacity)};",
          "test_charts", "*Spark*"),
]
