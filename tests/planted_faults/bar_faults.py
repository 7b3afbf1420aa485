"""Faults in the items of the menu bar."""

from planting import Fault

NODES = "src/menu_bar/menu_bar_item.cpp"
SIZES = "src/menu_bar/menu_bar_item.h"
BATTERY = "src/menu_bar/battery_menu_bar_item.cpp"
NETWORK = "src/menu_bar/network_menu_bar_item.cpp"
SENSOR = "src/menu_bar/sensor_menu_bar_item.cpp"
DISK = "src/menu_bar/disk_menu_bar_item.cpp"
PRESENTER = "src/menu_bar/item_presenter.cpp"
EASING = ("test_menu_bar", "EaseInterval.*")
WRITTEN = ("test_menu_bar", "WrittenValues.*")
ITEMS = ("test_menu_bar", "*MenuBarItem*:*Dot*:RecentSamples*")
VALUE_FONT = "monospacedSystemFont(fontSize, QFont::Medium)"

BAR_FAULTS = [
    Fault("values are not monospaced", NODES, VALUE_FONT, "systemFont(fontSize, QFont::Medium)", *WRITTEN),
    Fault("values are of normal weight", NODES, VALUE_FONT, "monospacedSystemFont(fontSize)", *WRITTEN),
    Fault("values are in the secondary colour", NODES, f"{VALUE_FONT}, primaryLabel",
          f"{VALUE_FONT}, secondaryLabel", *WRITTEN),
    Fault("labels are white on a light bar", "src/menu_bar/label_color.cpp", "QColor(0, 0, 0)", "LabelColors::primary",
          "test_menu_bar", "ScenePainterTest.*"),
    Fault("values are larger", SIZES, "valueFontSize = 11", "valueFontSize = 12", *WRITTEN),
    Fault("values beside a chart are as large as others", SIZES, "smallValueFontSize = 10", "smallValueFontSize = 11",
          *WRITTEN),
    Fault("a lone rate is of normal weight", NETWORK, "monospacedSystemFont(rateFontSize, QFont::Medium)",
          "monospacedSystemFont(rateFontSize)", *WRITTEN),
    Fault("a rate is not monospaced", NETWORK, "monospacedSystemFont(rateFontSize),", "systemFont(rateFontSize),",
          *WRITTEN),
    Fault("rates are larger", NETWORK, "rateFontSize = 8", "rateFontSize = 9", *WRITTEN),
    Fault("the download stands above the upload", NETWORK,
          "bareRate(m_monitor.totalUploadSpeed()), bareRate(m_monitor.totalDownloadSpeed())",
          "bareRate(m_monitor.totalDownloadSpeed()), bareRate(m_monitor.totalUploadSpeed())", *WRITTEN),
    Fault("the temperature is of normal weight", SENSOR, "monospacedSystemFont(smallValueFontSize, QFont::Medium)",
          "monospacedSystemFont(smallValueFontSize)", *WRITTEN),
    Fault("the history of temperatures reaches to 100", SENSOR, "historyMaximum = 110", "historyMaximum = 100", *ITEMS),
    Fault("an outlined bolt marks the charging battery", BATTERY, '"bolt.fill"', '"bolt"', *ITEMS),
    Fault("the bolt is larger", BATTERY, "chargingMarkFontSize = 7", "chargingMarkFontSize = 8", *ITEMS),
    Fault("the bolt is green", BATTERY, "chargingMarkFontSize, SystemColors::yellow",
          "chargingMarkFontSize, SystemColors::green", *ITEMS),
    Fault("the charge is written small alone too", BATTERY, "return charge(valueFontSize)",
          "return charge(smallValueFontSize)", *WRITTEN),
    Fault("unlit dots of the sensors are as bright as others", SENSOR,
          "unlitOpacity = 0.15", "unlitOpacity = 0.2", *ITEMS),
    Fault("read and write exchange their colours", DISK,
          "activityDotColor(m_monitor.diskIO().readSpeed, theme.diskReadColor)",
          "activityDotColor(m_monitor.diskIO().readSpeed, theme.diskWriteColor)", *ITEMS),
    Fault("icons are smaller", SIZES, "iconFontSize = 10", "iconFontSize = 9", *ITEMS),
    Fault("bars ease however busy the processor is", PRESENTER,
          "if (processorSeverity(processorUsage) == Severity::critical)", "if (processorUsage > 2)", *EASING),
    Fault("a busy processor takes as many frames as an idle one", PRESENTER,
          "framesWhenWorking = 3", "framesWhenWorking = 6", *EASING),
    Fault("a frame moves a bar by half a pixel", PRESENTER, "pixelsPerFrame = 1", "pixelsPerFrame = 0.5", *EASING),
    Fault("a history is drawn from 21 samples", SIZES, "recentSampleCount = 20",
          "recentSampleCount = 21", *ITEMS),
]
