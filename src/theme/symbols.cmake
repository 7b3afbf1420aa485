# Maps symbol names to pictures. The Bootstrap Icons (MIT) are embedded in the program; symbols/ holds our own where
# that collection has none, or one with strokes too thin for ten points.
find_path(ORVELLE_BOOTSTRAP_ICONS_DIR NAMES memory.svg cpu.svg lightning-charge-fill.svg
  PATH_SUFFIXES share/bootstrap-icons/svg bootstrap-icons/svg
  DOC "Folder of the Bootstrap Icons' SVG files")
if(NOT ORVELLE_BOOTSTRAP_ICONS_DIR)
  message(FATAL_ERROR "The Bootstrap Icons are missing: install the package bootstrap-icons, "
    "or set ORVELLE_BOOTSTRAP_ICONS_DIR to the folder of their SVG files.")
endif()

set(bootstrap_symbols
  arrow.down.circle.fill=arrow-down-circle-fill
  arrow.up.circle.fill=arrow-up-circle-fill
  battery.100=battery-full
  bolt=lightning-charge
  bolt.fill=lightning-charge-fill
  cable.connector=ethernet
  chart.bar.fill=bar-chart-fill
  chevron.down=chevron-down
  chevron.right=chevron-right
  cpu=cpu
  externaldrive=device-ssd
  gearshape=gear
  gearshape.fill=gear-fill
  internaldrive=hdd
  memorychip=memory
  power=power
  powerplug=plug
  powerplug.fill=plug-fill
  textformat.size=type
  thermometer=thermometer
  thermometer.medium=thermometer-half
  waveform.path=activity
  wifi=wifi)
set(own_symbols
  arrow.down
  arrow.up
  circle.grid.2x1.fill
  fan
  network
  text.badge.star)

# orvelle_embed_symbols(TARGET): embeds every symbol under :/symbols/NAME.svg.
function(orvelle_embed_symbols target)
  set(pictures)
  foreach(entry IN LISTS bootstrap_symbols)
    string(REPLACE "=" ";" entry ${entry})
    list(GET entry 0 name)
    list(GET entry 1 file)
    set(picture ${ORVELLE_BOOTSTRAP_ICONS_DIR}/${file}.svg)
    set_source_files_properties(${picture} PROPERTIES QT_RESOURCE_ALIAS ${name}.svg)
    list(APPEND pictures ${picture})
  endforeach()
  foreach(name IN LISTS own_symbols)
    set(picture ${CMAKE_CURRENT_SOURCE_DIR}/symbols/${name}.svg)
    set_source_files_properties(${picture} PROPERTIES QT_RESOURCE_ALIAS ${name}.svg)
    list(APPEND pictures ${picture})
  endforeach()
  qt_add_resources(${target} symbols PREFIX /symbols FILES ${pictures})
endfunction()
