# Gives tests the same environment for every user and on every desktop: fixed settings for drawing text, only the fonts
# that ./test installs, private folders in place of the user's, and no way to the user's desktop.

set(ORVELLE_TEST_HOME ${CMAKE_BINARY_DIR}/test-home)
foreach(folder IN ITEMS config data cache state runtime)
  file(MAKE_DIRECTORY ${ORVELLE_TEST_HOME}/${folder})
endforeach()
file(CHMOD ${ORVELLE_TEST_HOME}/runtime DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

set(ORVELLE_PRIVATE_FOLDERS
  HOME=${ORVELLE_TEST_HOME}
  CFFIXED_USER_HOME=${ORVELLE_TEST_HOME} # the home folder of macOS
  XDG_CONFIG_HOME=${ORVELLE_TEST_HOME}/config
  XDG_DATA_HOME=${ORVELLE_TEST_HOME}/data
  XDG_CACHE_HOME=${ORVELLE_TEST_HOME}/cache
  XDG_STATE_HOME=${ORVELLE_TEST_HOME}/state
  XDG_RUNTIME_DIR=${ORVELLE_TEST_HOME}/runtime)
# Where programs find the user's windows, panels, settings, session and assistive programs.
set(ORVELLE_DESKTOP_ADDRESSES
  DISPLAY XAUTHORITY WAYLAND_DISPLAY WAYLAND_SOCKET DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS SESSION_MANAGER SWAYSOCK
  I3SOCK XDG_ACTIVATION_TOKEN DESKTOP_STARTUP_ID)

# Every test program sets the same before its `main`, for those who run it by hand. The list of these variables in C++:
list(TRANSFORM ORVELLE_PRIVATE_FOLDERS REPLACE "([^=]*)=(.*)" "{\"\\1\", \"\\2\"}" OUTPUT_VARIABLE folders)
list(JOIN folders ", " folders)
list(TRANSFORM ORVELLE_DESKTOP_ADDRESSES REPLACE "(.+)" "\"\\1\"" OUTPUT_VARIABLE addresses)
list(JOIN addresses ", " addresses)
file(CONFIGURE OUTPUT ${ORVELLE_TEST_HOME}/private_folders_list.h CONTENT "#pragma once
namespace orvelle {
struct PrivateFolder {
    const char* name;
    const char* folder;
};
constexpr PrivateFolder privateFolders[]{@folders@};
constexpr const char* addressesOfTheDesktop[]{@addresses@};
}
" @ONLY)
add_library(orvelle_private_folders OBJECT ${CMAKE_SOURCE_DIR}/tests/support/private_folders.cpp)
target_include_directories(orvelle_private_folders PRIVATE ${ORVELLE_TEST_HOME})

# orvelle_test_fonts(NAME FONT SANS_SERIF FILE...): writes a font configuration that contains only these files, through
# links in a private folder. SANS_SERIF becomes the desktop's font. FONT is the resulting family and style of that font.
function(orvelle_test_fonts name font sans_serif)
  set(folder ${ORVELLE_TEST_HOME}/fonts-${name})
  file(REMOVE_RECURSE ${folder})
  file(MAKE_DIRECTORY ${folder})
  foreach(file IN LISTS ARGN)
    file(CREATE_LINK /usr/share/fonts/truetype/dejavu/${file}.ttf ${folder}/${file}.ttf SYMBOLIC)
  endforeach()
  configure_file(${CMAKE_SOURCE_DIR}/tests/support/fonts.conf.in ${ORVELLE_TEST_HOME}/fonts-${name}.conf @ONLY)
  set(ORVELLE_TEST_FONT_${name} ${font} PARENT_SCOPE)
endfunction()

# The fonts of the package fonts-dejavu-core, without those that other packages add to its folder.
set(mono DejaVuSansMono DejaVuSansMono-Bold)
orvelle_test_fonts(usual "DejaVu Sans Book" "DejaVu Sans"
  DejaVuSans DejaVuSans-Bold DejaVuSerif DejaVuSerif-Bold ${mono})
# Texts must fit in these fonts too: a wider one, one whose letters are all as wide as a digit, and a narrower one from
# the package fonts-dejavu-extra.
orvelle_test_fonts(wide "DejaVu Serif Bold" "DejaVu Serif" DejaVuSerif-Bold ${mono})
orvelle_test_fonts(even "DejaVu Sans Mono Book" "DejaVu Sans Mono" ${mono})
orvelle_test_fonts(narrow "DejaVu Sans Condensed" "DejaVu Sans" DejaVuSansCondensed DejaVuSansCondensed-Bold ${mono})

# Variables that desktops and users set to choose scales, fonts and themes.
set(desktop_choices
  QT_QPA_PLATFORMTHEME QT_FONT_DPI QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_AUTO_SCREEN_SCALE_FACTOR
  QT_ENABLE_HIGHDPI_SCALING QT_SCALE_FACTOR_ROUNDING_POLICY QT_USE_PHYSICAL_DPI
  XDG_CURRENT_DESKTOP XDG_SESSION_DESKTOP DESKTOP_SESSION KDE_FULL_SESSION GNOME_DESKTOP_SESSION_ID
  FREETYPE_PROPERTIES FONTCONFIG_PATH FONTCONFIG_SYSROOT)
list(APPEND desktop_choices ${ORVELLE_DESKTOP_ADDRESSES})
list(TRANSFORM desktop_choices APPEND "=unset:" OUTPUT_VARIABLE ORVELLE_WITHOUT_DESKTOP_CHOICES)

# Every test runs off-screen and under one locale.
function(orvelle_test_environment name)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  set_property(TEST ${name} PROPERTY ENVIRONMENT
    QT_QPA_PLATFORM=offscreen
    LC_ALL=C.UTF-8
    ${ORVELLE_PRIVATE_FOLDERS}
    UBSAN_OPTIONS=print_stacktrace=1
    LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0)
  set_property(TEST ${name} PROPERTY ENVIRONMENT_MODIFICATION ${ORVELLE_WITHOUT_DESKTOP_CHOICES})
  orvelle_test_has_fonts(${name} usual)
endfunction()

# orvelle_test_has_fonts(TEST NAME): gives the test only the fonts of this name, on systems with fontconfig.
function(orvelle_test_has_fonts test fonts)
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
  endif()
  set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT_MODIFICATION
    FONTCONFIG_FILE=set:${ORVELLE_TEST_HOME}/fonts-${fonts}.conf
    "ORVELLE_TEST_FONT=set:${ORVELLE_TEST_FONT_${fonts}}")
endfunction()

# orvelle_test_in_other_fonts(TEST FILTER): also runs the program's tests that FILTER matches in the other fonts.
function(orvelle_test_in_other_fonts program filter)
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
  endif()
  foreach(fonts IN ITEMS wide even narrow)
    set(test ${program}_in_${fonts}_fonts)
    add_test(NAME ${test} COMMAND ${program} --gtest_filter=${filter})
    orvelle_test_environment(${test})
    orvelle_test_has_fonts(${test} ${fonts})
  endforeach()
endfunction()

# Qt keeps objects of its connection to a Wayland compositor until the process ends. The sanitizer's short stacks end in
# the library that allocates them. The tests of the program's own connection look for leaks there.
set(usual_leaks ${CMAKE_SOURCE_DIR}/tests/leaks.supp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${usual_leaks})
file(READ ${usual_leaks} leaks)
set(ORVELLE_WAYLAND_LEAKS ${CMAKE_BINARY_DIR}/wayland-leaks.supp)
file(CONFIGURE OUTPUT ${ORVELLE_WAYLAND_LEAKS} CONTENT "${leaks}leak:libwayland-client.so\n" @ONLY)

# orvelle_test_keeps_wayland_objects(TEST): Qt is a client of a Wayland compositor in the test.
function(orvelle_test_keeps_wayland_objects test)
  set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT_MODIFICATION
    LSAN_OPTIONS=set:suppressions=${ORVELLE_WAYLAND_LEAKS}:print_suppressions=0)
endfunction()
