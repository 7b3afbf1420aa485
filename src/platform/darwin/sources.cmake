# Compiled for macOS here, and against a simulated macOS by tests/darwin.
set(ORVELLE_DARWIN_SOURCES
  darwin_battery_source.cpp
  darwin_disk_source.cpp
  darwin_machine.cpp
  darwin_memory_source.cpp
  darwin_network_source.cpp
  darwin_process_source.cpp
  darwin_processor_source.cpp
  darwin_sensor_source.cpp
  empty_machine.cpp
  mounted_volumes.mm
  properties.cpp
  registry.cpp
  smc_helper.cpp
  smc_user_client.cpp
  stop.cpp)
list(TRANSFORM ORVELLE_DARWIN_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
