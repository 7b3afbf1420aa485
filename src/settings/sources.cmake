# Compiled for macOS here, and against simulated user defaults by tests/user_defaults.
set(ORVELLE_USER_DEFAULTS_SOURCE ${CMAKE_CURRENT_LIST_DIR}/user_settings_darwin.mm)
