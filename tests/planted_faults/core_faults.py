"""Faults in the sampling core and the delegate."""

from planting import Fault

MONITOR = "src/core/system_monitor.cpp"
SMC = "src/platform/darwin/smc_helper.cpp"
DELEGATE = "src/app/app_delegate.cpp"
ORDER = ("test_core", "SystemMonitor*")

CORE_FAULTS = [
    Fault("stopping forgets how many cycles there were", MONITOR,
          "    m_timer->stop();\n", "    m_timer->stop();\n    m_updateCycleCount = 0;\n", *ORDER),
    Fault("the processes are sampled in the third cycle first", MONITOR,
          "cyclesPerProcessUpdate == 1", "cyclesPerProcessUpdate == 0", *ORDER),
    Fault("the processes are sampled in every fourth cycle", MONITOR,
          "cyclesPerProcessUpdate = 3", "cyclesPerProcessUpdate = 4", *ORDER),
    Fault("the processes are sampled before the count goes on", MONITOR,
          "m_updateCycleCount % cyclesPerProcessUpdate == 1",
          "(m_updateCycleCount - 1) % cyclesPerProcessUpdate == 1", *ORDER),
    Fault("the sensors are sampled before the battery", MONITOR,
          "    m_battery.update();\n    m_sensor.update();\n", "    m_sensor.update();\n    m_battery.update();\n",
          *ORDER),
    Fault("the volumes are read after the counters", MONITOR,
          "    m_disk.updateVolumes();\n    m_disk.updateIO();\n",
          "    m_disk.updateIO();\n    m_disk.updateVolumes();\n", *ORDER),
    Fault("starting samples only when the timer fires", MONITOR,
          "void SystemMonitor::start() {\n    updateCycle();\n", "void SystemMonitor::start() {\n", *ORDER),
    Fault("the timer fires once", MONITOR,
          "    m_timer->callOnTimeout(", "    m_timer->setSingleShot(true);\n    m_timer->callOnTimeout(", *ORDER),
    Fault("the interval of the settings has no floor", MONITOR,
          "std::max(m_settings.updateInterval(), minimumIntervalSeconds)", "m_settings.updateInterval()", *ORDER),
    Fault("the interval of the settings is not asked for", MONITOR,
          "std::max(m_settings.updateInterval(), minimumIntervalSeconds)", "minimumIntervalSeconds", *ORDER),
    Fault("the process monitor is made before the sensors'", "src/core/system_monitor.h",
          "    SensorMonitor m_sensor;\n    ProcessMonitor m_process;\n",
          "    ProcessMonitor m_process;\n    SensorMonitor m_sensor;\n", *ORDER),
    Fault("the network monitor is made before the disk's", "src/core/system_monitor.h",
          "    DiskMonitor m_disk;\n    NetworkMonitor m_network;\n",
          "    NetworkMonitor m_network;\n    DiskMonitor m_disk;\n", *ORDER),
    Fault("the controller's result byte decides", SMC,
          "    return decodeSMCValue(info, output.bytes);",
          "    return output.result != 0 ? std::nullopt : decodeSMCValue(info, output.bytes);",
          "test_darwin", "SMCHelper*"),
    Fault("the controller's result byte decides on the key", SMC,
          "    // The second answer is decoded", "    if (output.result != 0)\n        return std::nullopt;\n"
          "    // The second answer is decoded", "test_darwin", "SMCHelper*"),
    Fault("a test program that is run by hand has the user's folders", "cmake/OrvelleTargets.cmake",
          "${support} orvelle_private_folders)", "${support})", "test_environment", "*ByHand*"),
    Fault("the visibility is looked at once", DELEGATE,
          "    m_refreshTimer->callOnTimeout(",
          "    m_refreshTimer->setSingleShot(true);\n    m_refreshTimer->callOnTimeout(", "test_app", "AppDelegate*"),
    Fault("the visibility is looked at every six seconds", DELEGATE,
          "m_refreshTimer->setInterval(visibilityInterval)", "m_refreshTimer->setInterval(2 * visibilityInterval)",
          "test_app", "AppDelegate*"),
    Fault("the items are redrawn at most every four seconds", DELEGATE,
          "std::make_unique<Throttle>(redrawInterval, this)", "std::make_unique<Throttle>(2 * redrawInterval, this)",
          "test_app", "AppDelegate*"),
    Fault("a changed interval waits for the next start", DELEGATE,
          "        m_monitor.restart();\n        startRefreshTimer();\n", "        startRefreshTimer();\n",
          "test_app", "AppDelegate*"),
]
