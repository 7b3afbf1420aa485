# Builds the program as Orvelle.app, and lets `cpack` write a disk image with it and the parts of Qt that it needs.

# What the sources ask for: a name for the I/O Kit port that macOS 12 introduced. The libraries in the finished bundle may
# need a newer system; finish_bundle.sh then states that one.
set(ORVELLE_OLDEST_MACOS 12.0)
if(CMAKE_OSX_DEPLOYMENT_TARGET)
  set(ORVELLE_OLDEST_MACOS ${CMAKE_OSX_DEPLOYMENT_TARGET})
endif()

include(${CMAKE_CURRENT_LIST_DIR}/identifier.cmake)
set_target_properties(orvelle PROPERTIES
  OUTPUT_NAME Orvelle
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_LIST_DIR}/Info.plist.in
  MACOSX_BUNDLE_BUNDLE_NAME Orvelle
  MACOSX_BUNDLE_GUI_IDENTIFIER ${ORVELLE_BUNDLE_IDENTIFIER}
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})

# The icon in all sizes, under the names that `iconutil` expects in an icon set.
set(drawing ${CMAKE_SOURCE_DIR}/packaging/orvelle.svg)
set(icon_set ${CMAKE_CURRENT_BINARY_DIR}/Orvelle.iconset)
set(icon ${CMAKE_CURRENT_BINARY_DIR}/Orvelle.icns)
set(sizes "")
foreach(points IN ITEMS 16 32 128 256 512)
  math(EXPR doubled "2 * ${points}")
  list(APPEND sizes ${points} ${icon_set}/icon_${points}x${points}.png ${doubled} ${icon_set}/icon_${points}x${points}@2x.png)
endforeach()
add_custom_command(OUTPUT ${icon}
  COMMAND orvelle_icon_sizes ${drawing} ${sizes}
  COMMAND iconutil --convert icns --output ${icon} ${icon_set}
  DEPENDS orvelle_icon_sizes ${drawing})
set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
target_sources(orvelle PRIVATE ${icon})
set_target_properties(orvelle PROPERTIES MACOSX_BUNDLE_ICON_FILE Orvelle.icns)

install(TARGETS orvelle BUNDLE DESTINATION .)
find_program(ORVELLE_MACDEPLOYQT macdeployqt HINTS ${QT6_INSTALL_PREFIX}/bin DOC "Copies Qt into a bundle")
if(ORVELLE_MACDEPLOYQT)
  file(TO_CMAKE_PATH "$ENV{CMAKE_PREFIX_PATH}" library_folders)
  list(APPEND library_folders ${CMAKE_PREFIX_PATH} ${QT6_INSTALL_PREFIX})
  list(REMOVE_DUPLICATES library_folders)
  list(TRANSFORM library_folders REPLACE "^(.+)$" "\"\\1/lib\"")
  list(JOIN library_folders " " library_folders)
  install(CODE "execute_process(
    COMMAND ${CMAKE_CURRENT_LIST_DIR}/finish_bundle.sh \"${ORVELLE_MACDEPLOYQT}\"
      \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Orvelle.app\" \"${CMAKE_SOURCE_DIR}/src\" ${library_folders}
    COMMAND_ERROR_IS_FATAL ANY)")
endif()

# The name says which Macs the image is for.
set(processors ${CMAKE_OSX_ARCHITECTURES})
if(NOT processors)
  set(processors ${CMAKE_SYSTEM_PROCESSOR})
endif()
list(JOIN processors "-" processors)

set(CPACK_GENERATOR DragNDrop)
set(CPACK_PACKAGE_NAME Orvelle)
set(CPACK_PACKAGE_VENDOR Orvelle)
set(CPACK_PACKAGE_FILE_NAME Orvelle-${PROJECT_VERSION}-${processors})
set(CPACK_DMG_VOLUME_NAME Orvelle)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/notarize.cmake)
include(CPack)
