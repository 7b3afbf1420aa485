# Compiled for macOS here, and against a simulated AppKit by tests/appkit.
set(ORVELLE_MACOS_SHELL_SOURCES
  click_through_hosting_view.mm
  display_options_observer.mm
  hosted_window.mm
  macos_context_menu.mm
  macos_fonts.mm
  macos_login_item.mm
  macos_popover.mm
  macos_reduced_motion.mm
  macos_settings_window.mm
  macos_single_instance.mm
  macos_status_bar.mm
  macos_status_item.mm
  menu_target.mm
  picture.mm
  popover_observer.mm
  reopen_observer.mm
  status_item_target.mm
  text.mm)
# Apart from the others, because the test stands in for what Qt answers there.
set(ORVELLE_MACOS_NATIVE_VIEW_SOURCE native_view.mm)
list(TRANSFORM ORVELLE_MACOS_SHELL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM ORVELLE_MACOS_NATIVE_VIEW_SOURCE PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
