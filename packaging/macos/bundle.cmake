# Builds the program as Orvelle.app, and lets `cpack` write a disk image with it and the parts of Qt that it needs.

# The sources use a name for the I/O Kit port that macOS 12 introduced.
set(ORVELLE_OLDEST_MACOS 12.0)
if(CMAKE_OSX_DEPLOYMENT_TARGET)
  set(ORVELLE_OLDEST_MACOS ${CMAKE_OSX_DEPLOYMENT_TARGET})
endif()

set_target_properties(orvelle PROPERTIES
  OUTPUT_NAME Orvelle
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_LIST_DIR}/Info.plist.in
  MACOSX_BUNDLE_BUNDLE_NAME Orvelle
  MACOSX_BUNDLE_GUI_IDENTIFIER orvelle.Orvelle
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})

# The icon in all sizes, from the same drawing that other desktops use.
set(ORVELLE_ICON_DRAWING ${CMAKE_SOURCE_DIR}/packaging/orvelle.svg CACHE FILEPATH "Drawing of the program's icon")
if(EXISTS ${ORVELLE_ICON_DRAWING})
  add_executable(orvelle_icon_set EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/icon_set.cpp)
  target_link_libraries(orvelle_icon_set PRIVATE orvelle_build_flags Qt6::Gui Qt6::Svg)
  set(icon_set ${CMAKE_CURRENT_BINARY_DIR}/Orvelle.iconset)
  set(icon ${CMAKE_CURRENT_BINARY_DIR}/Orvelle.icns)
  add_custom_command(OUTPUT ${icon}
    COMMAND orvelle_icon_set ${ORVELLE_ICON_DRAWING} ${icon_set}
    COMMAND iconutil --convert icns --output ${icon} ${icon_set}
    DEPENDS orvelle_icon_set ${ORVELLE_ICON_DRAWING})
  set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  target_sources(orvelle PRIVATE ${icon})
  set_target_properties(orvelle PROPERTIES MACOSX_BUNDLE_ICON_FILE Orvelle.icns)
else()
  message(STATUS "No drawing of the icon at ${ORVELLE_ICON_DRAWING}: Orvelle.app gets the system's")
endif()

install(TARGETS orvelle BUNDLE DESTINATION .)
find_program(ORVELLE_MACDEPLOYQT macdeployqt HINTS ${QT6_INSTALL_PREFIX}/bin DOC "Copies Qt into a bundle")
if(ORVELLE_MACDEPLOYQT)
  # A changed program must be signed again to start. Without an identity the signature is valid on this machine only.
  install(CODE "execute_process(
    COMMAND \"${ORVELLE_MACDEPLOYQT}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Orvelle.app\"
      \"-qmldir=${CMAKE_SOURCE_DIR}/src\" -codesign=-
    COMMAND_ERROR_IS_FATAL ANY)")
endif()

set(CPACK_GENERATOR DragNDrop)
set(CPACK_PACKAGE_NAME Orvelle)
set(CPACK_PACKAGE_VENDOR Orvelle)
set(CPACK_PACKAGE_FILE_NAME Orvelle-${PROJECT_VERSION})
set(CPACK_DMG_VOLUME_NAME Orvelle)
include(CPack)
