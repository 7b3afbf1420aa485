# Turns descriptions of Wayland protocols into code.

pkg_get_variable(ORVELLE_WAYLAND_SCANNER wayland-scanner wayland_scanner)
pkg_get_variable(ORVELLE_WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)
# Each with its description. The layer shell is in no package.
set(ORVELLE_PROTOCOLS
  xdg-shell ${ORVELLE_WAYLAND_PROTOCOLS}/stable/xdg-shell/xdg-shell.xml
  viewporter ${ORVELLE_WAYLAND_PROTOCOLS}/stable/viewporter/viewporter.xml
  fractional-scale-v1 ${ORVELLE_WAYLAND_PROTOCOLS}/staging/fractional-scale/fractional-scale-v1.xml
  xdg-output-unstable-v1 ${ORVELLE_WAYLAND_PROTOCOLS}/unstable/xdg-output/xdg-output-unstable-v1.xml
  wlr-layer-shell-unstable-v1
  ${CMAKE_SOURCE_DIR}/src/shell/wayland/protocols/wlr-layer-shell-unstable-v1.xml)

# orvelle_wayland_code(TARGET KIND SUFFIX): generates code of one kind, such as `client-header`, for all protocols, in
# files named after the protocol with this suffix. The target includes them as system headers, which give no warnings.
# They are there before anything is built, for checks that do not build.
function(orvelle_wayland_code target kind suffix)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/protocols)
  file(MAKE_DIRECTORY ${folder})
  set(descriptions ${ORVELLE_PROTOCOLS})
  while(descriptions)
    list(POP_FRONT descriptions name description)
    set(code ${folder}/${name}${suffix})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${description})
    if(${description} IS_NEWER_THAN ${code}) # or the code is missing
      execute_process(COMMAND ${ORVELLE_WAYLAND_SCANNER} ${kind} ${description} ${code} COMMAND_ERROR_IS_FATAL ANY)
    endif()
  endwhile()
  target_include_directories(${target} SYSTEM PUBLIC ${folder})
endfunction()
