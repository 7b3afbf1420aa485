# Lets `cpack` write a package for this release of Debian or Ubuntu, another one with its debug symbols, and a tree that can
# be unpacked anywhere. ./package sets the build up for it.
file(STRINGS /etc/os-release release REGEX "^(ID|VERSION_ID|VERSION_CODENAME)=")
foreach(line IN LISTS release)
  string(REGEX MATCH "^([A-Z_]+)=\"?([^\"]*)" line "${line}")
  set(release_${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
endforeach()
# Versions of a newer release sort behind those of an older one, so that an upgrade of the system upgrades the package.
set(release "${release_ID}${release_VERSION_ID}")

set(CPACK_GENERATOR DEB TXZ)
set(CPACK_PACKAGE_NAME orvelle)
set(CPACK_PACKAGE_VENDOR "the Orvelle authors")
set(CPACK_PACKAGE_CONTACT "the Orvelle authors <maintainers@orvelle.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "system monitor in the menu bar")
set(CPACK_PACKAGE_DESCRIPTION "Orvelle shows in a bar at the top of the screen what the machine is doing:
processor, memory, network, disks, battery, temperatures and fans. A click on
one of them opens its details, with their history and the programs that use
the most. It works on X11, on Wayland and in a tray.")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/package_formats.cmake)
set(CPACK_PACKAGE_FILE_NAME orvelle-${PROJECT_VERSION}-${release}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_THREADS 0)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "1~${release}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
if(ORVELLE_HOMEPAGE)
  set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${ORVELLE_HOMEPAGE})
endif()
# The linker knows the libraries. It does not know what the program opens while it runs: the modules that its windows
# import, Qt's plugin for Wayland, and a font.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-wayland, fonts-dejavu-core | fonts-dejavu, libxcb-cursor0, \
qml6-module-qtquick, qml6-module-qtquick-layouts, qml6-module-qtquick-templates, qml6-module-qtquick-window, \
qml6-module-qtqml, qml6-module-qtqml-workerscript")
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# What Debian asks of the documentation of a package.
set(documentation ${CMAKE_CURRENT_BINARY_DIR}/linux/documentation)
execute_process(COMMAND date --utc --rfc-email --date=${ORVELLE_RELEASE_DATE}
  OUTPUT_VARIABLE ORVELLE_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(READ ${CMAKE_SOURCE_DIR}/LICENSE license)
string(REGEX REPLACE "^[^\n]*\n\n[^\n]*\n\n" "" license "${license}") # without its title and the line of the copyright
string(REGEX REPLACE "\n\n" "\n.\n" license "${license}")
string(STRIP "${license}" license)
string(REPLACE "\n" "\n " license " ${license}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright.in ${documentation}/copyright @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in ${documentation}/changelog.Debian @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/CHANGELOG.md ${documentation}/changelog COPYONLY)
foreach(file IN ITEMS changelog changelog.Debian)
  execute_process(COMMAND gzip -9n --force ${documentation}/${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
install(FILES ${documentation}/copyright ${documentation}/changelog.gz ${documentation}/changelog.Debian.gz
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/orvelle)
include(CPack)
