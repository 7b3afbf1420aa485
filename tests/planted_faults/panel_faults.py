"""Faults in the panels: in the input of their charts and in their contents."""

from planting import Fault

STYLES = ("test_windows_panels", "PanelStyles.*")
DATA = ("test_windows_panels", "PanelData.*")
PICTURES = ("test_golden_panels", "*")
GRAPH = "src/windows/panels/HistoryGraph.qml"
CPU = "src/windows/panels/CPUPanelView.qml"
MEMORY = "src/windows/panels/MemoryPanelView.qml"
RATES = "src/windows/panels/TransferRates.qml"
NETWORK = "src/windows/panels/NetworkPanelView.qml"
DISK = "src/windows/panels/DiskPanelView.qml"
BATTERY = "src/windows/panels/BatteryPanelView.qml"
SENSORS = "src/windows/panels/SensorPanelView.qml"

STYLE_FAULTS = [
    Fault("graphs do not know the line style", GRAPH, "    lineStyle: graph.settings.graphLineStyle\n", "", *STYLES),
    Fault("graphs do not know the fill style", GRAPH, "    fillStyle: graph.settings.graphFillStyle\n", "", *STYLES),
    Fault("graphs do not know the glow", GRAPH, "    glowIntensity: graph.settings.glowIntensity\n", "", *STYLES),
    Fault("graphs always glow", GRAPH, "showGlow: PanelGraphics.hasGlow(graph.settings.glowIntensity)",
          "showGlow: true", *STYLES),
    Fault("graphs are not filled", GRAPH, "fillGradient: true", "fillGradient: false", *STYLES),
    Fault("lines are thinner", GRAPH, "lineWidth: 1.5", "lineWidth: 1", *STYLES),
    Fault("graphs have no grid", GRAPH, "gridColor: graph.themeManager.currentTheme.graphGrid", "gridColor: Look.clear",
          *STYLES),
    Fault("bars do not know their style", CPU, "            barStyle: panel.settings.barChartStyle\n", "", *STYLES),
    Fault("bars do not know the animation", CPU, "            animationSpeed: panel.settings.animationSpeed\n", "",
          *STYLES),
    Fault("bars do not know the glow", CPU, "            glowIntensity: panel.settings.glowIntensity\n", "", *STYLES),
    Fault("bars always glow", CPU, "showGlow: PanelGraphics.hasGlow(panel.settings.glowIntensity)", "showGlow: true",
          *STYLES),
    Fault("bars jump", CPU, "animateChanges: true", "animateChanges: false", *STYLES),
    Fault("the ring does not know the animation", MEMORY, "animationSpeed: panel.settings.animationSpeed\n", "",
          *STYLES),
    Fault("the ring does not know the glow", MEMORY, "glowIntensity: panel.settings.glowIntensity\n", "", *STYLES),
    Fault("the ring does not know its style", MEMORY, "ringStyle: panel.settings.ringChartStyle\n", "", *STYLES),
    Fault("gauges do not know the glow", SENSORS, "        glowIntensity: settings.glowIntensity\n", "", *STYLES),
    Fault("gauges always glow", SENSORS, "showGlow: PanelGraphics.hasGlow(settings.glowIntensity)", "showGlow: true",
          *STYLES),
    Fault("gauges know Celsius only", SENSORS, "        useFahrenheit: settings.useFahrenheit\n", "", *STYLES),
    Fault("gauges reach to 100", SENSORS, "maxTemp: 110", "maxTemp: 100", *STYLES),
    Fault("the processor's temperatures reach to 100", SENSORS,
          "data: panel.sensor.cpuTempHistory\n                maxValue: 110",
          "data: panel.sensor.cpuTempHistory\n                maxValue: 100", *STYLES),
    Fault("the graphics' temperatures reach to 100", SENSORS,
          "data: panel.sensor.gpuTempHistory\n                maxValue: 110",
          "data: panel.sensor.gpuTempHistory\n                maxValue: 100", *STYLES),
    Fault("the second graph draws the grid again", RATES,
          "                gridColor: Look.clear // the grid is drawn once\n",
          "", *STYLES),
]

DATA_FAULTS = [
    Fault("wired and active memory exchange places", MEMORY,
          "                    { value: panel.info.wired, color: panel.wiredColor, label: \"Wired\" },\n"
          "                    { value: panel.info.active, color: panel.moduleColor, label: \"Active\" },\n",
          "                    { value: panel.info.active, color: panel.moduleColor, label: \"Active\" },\n"
          "                    { value: panel.info.wired, color: panel.wiredColor, label: \"Wired\" },\n", *DATA),
    Fault("cached memory has the colour of compressed", MEMORY, "value: panel.info.cached, color: panel.cachedColor",
          "value: panel.info.cached, color: panel.compressedColor", *DATA),
    Fault("compressed memory is yellow", MEMORY, "compressedColor: Look.orange", "compressedColor: Look.yellow", *DATA),
    Fault("free memory is as faint in the legend as in the ring", MEMORY,
          "swatchColor: Look.withOpacity(Look.white, 0.3)", "swatchColor: Look.withOpacity(Look.white, 0.08)", *DATA),
    Fault("the badge has the colour of the graph", MEMORY, "color: PanelGraphics.pressureBadgeColor(panel.pressure)",
          "color: PanelGraphics.pressureGraphColor(panel.pressure, panel.moduleColor)", *DATA),
    Fault("the badge tells the used share", MEMORY, "text: PanelTexts.pressureBadgeText(panel.pressure)",
          "text: PanelTexts.pressureBadgeText(panel.used + 0.01)", *DATA),
    Fault("the second graph has a scale of its own", RATES,
          "data: rates.secondData\n                maxValue: rates.sharedScale",
          "data: rates.secondData\n                maxValue: PanelGraphics.sharedGraphScale(rates.secondData, [])",
          *DATA),
    Fault("the first graph has a scale of its own", RATES,
          "data: rates.firstData\n                maxValue: rates.sharedScale",
          "data: rates.firstData\n                maxValue: PanelGraphics.sharedGraphScale(rates.firstData, [])",
          *DATA),
    Fault("the legend exchanges the directions", RATES,
          "text: rates.secondName\n                swatchColor: rates.secondColor",
          "text: rates.secondName\n                swatchColor: rates.firstColor", *DATA),
    Fault("the upload's history is the download's", NETWORK, "secondData: panel.network.uploadHistory",
          "secondData: panel.network.downloadHistory", *DATA),
    Fault("writing has the colour of reading", DISK, "secondColor: panel.themeManager.currentTheme.diskWriteColor",
          "secondColor: panel.themeManager.currentTheme.diskReadColor", *DATA),
    Fault("the graphics' history is the processor's", SENSORS, "data: panel.sensor.gpuTempHistory",
          "data: panel.sensor.cpuTempHistory", *DATA),
    Fault("fans turn at half their rate", SENSORS, "360 * stepSeconds", "180 * stepSeconds", *DATA),
    Fault("fans turn backwards", SENSORS, "?? 0) + step) % 360", "?? 0) - step) % 360", *DATA),
    Fault("fans move ten times a second", SENSORS, "interval: 1000 * fanList.stepSeconds",
          "interval: 2000 * fanList.stepSeconds",
          *DATA),
    Fault("a fast fan has no limit", "src/windows/panels/panel_graphics.cpp",
          "std::max(3000 / static_cast<double>(speed), fastestTurn)", "3000 / static_cast<double>(speed)", *DATA),
    Fault("an outlined bolt marks the charging battery in its panel", BATTERY, 'name: "bolt.fill"', 'name: "bolt"',
          *DATA),
    Fault("the bolt stays on battery", BATTERY, "                    visible: panel.info.isCharging\n", "", *DATA),
    Fault("the time until empty is told while charging", BATTERY, "panel.info.isCharging ? panel.info.timeToFull",
          "panel.info.isCharging ? panel.info.timeToEmpty", *DATA),
]

PICTURE_FAULTS = [
    Fault("the badge's ground is denser", MEMORY, "Look.withOpacity(badge.color, 0.15)",
          "Look.withOpacity(badge.color, 0.3)", *PICTURES),
    Fault("used and total swap are exchanged", MEMORY, "text: PanelTexts.formatByteSize(panel.info.swapUsed)",
          "text: PanelTexts.formatByteSize(panel.info.swapTotal)", *PICTURES),
    Fault("the bars of the processes have one scale", "src/windows/panels/ProcessListView.qml",
          "PanelGraphics.processBarScale(processes, byMemory)", "100", *PICTURES),
    Fault("processes of the memory tell their processor time", MEMORY, "mode: ProcessListView.DisplayMode.Memory",
          "mode: ProcessListView.DisplayMode.CPU", *PICTURES),
    Fault("the health's bar is full", BATTERY, "fraction: panel.info.health", "fraction: 1", *PICTURES),
    Fault("a charging battery's bar keeps the module's colour", BATTERY,
          "fillColor: panel.info.isCharging ? Look.green : panel.moduleColor", "fillColor: panel.moduleColor",
          *DATA),
    Fault("a volume's bar is empty", DISK, "fraction: card.used", "fraction: 0", *PICTURES),
]

PANEL_FAULTS = STYLE_FAULTS + DATA_FAULTS + PICTURE_FAULTS
