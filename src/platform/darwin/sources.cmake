# Compiled for macOS here, and against a simulated macOS by tests/darwin.
set(ORVELLE_DARWIN_SOURCES
  darwin_battery_source.cpp
  darwin_disk_source.mm
  darwin_machine.cpp
  darwin_memory_source.cpp
  darwin_network_source.cpp
  darwin_process_source.cpp
  darwin_processor_source.cpp
  darwin_sensor_source.cpp
  purgeable_space.cpp
  smc_helper.cpp
  smc_user_client.cpp
  system_objects.cpp)
list(TRANSFORM ORVELLE_DARWIN_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
