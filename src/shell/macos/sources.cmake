# Compiled for macOS here, and against a simulated AppKit by tests/appkit.
set(ORVELLE_MACOS_SHELL_SOURCES
  click_through_hosting_view.mm
  foundation.mm
  hosted_window.mm
  macos_context_menu.mm
  macos_desktop.mm
  macos_display_options.mm
  macos_launch.mm
  macos_popover.mm
  macos_settings_window.mm
  macos_status_bar.mm
  macos_status_item.mm
  program_activation.mm)
# Apart from the others, because the test stands in for what Qt answers there.
set(ORVELLE_MACOS_NATIVE_VIEW_SOURCE native_view.mm)
list(TRANSFORM ORVELLE_MACOS_SHELL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM ORVELLE_MACOS_NATIVE_VIEW_SOURCE PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
