# What tests find around them, whoever runs them and on whichever desktop: one way of drawing text, with the fonts
# that ./test installs, and folders of their own in place of the user's.

set(ORVELLE_TEST_HOME ${CMAKE_BINARY_DIR}/test-home)
foreach(folder IN ITEMS config data cache state runtime)
  file(MAKE_DIRECTORY ${ORVELLE_TEST_HOME}/${folder})
endforeach()
file(CHMOD ${ORVELLE_TEST_HOME}/runtime DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# orvelle_test_fonts(NAME FONT SANS_SERIF FILE...): writes a configuration that knows only these font files, by links
# in a folder of their own, and SANS_SERIF of them as the desktop's font. FONT is the family and style that the desktop's
# font then has.
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

# Those of the package fonts-dejavu-core, whatever other packages put beside them.
set(mono DejaVuSansMono DejaVuSansMono-Bold)
orvelle_test_fonts(usual "DejaVu Sans Book" "DejaVu Sans"
  DejaVuSans DejaVuSans-Bold DejaVuSerif DejaVuSerif-Bold ${mono})
# Others, in which texts must have room too: a wider one, one whose letters are all as wide as a digit, and one
# that is narrower, of the package fonts-dejavu-extra.
orvelle_test_fonts(wide "DejaVu Serif Bold" "DejaVu Serif" DejaVuSerif-Bold ${mono})
orvelle_test_fonts(even "DejaVu Sans Mono Book" "DejaVu Sans Mono" ${mono})
orvelle_test_fonts(narrow "DejaVu Sans Condensed" "DejaVu Sans" DejaVuSansCondensed DejaVuSansCondensed-Bold ${mono})

# What desktops and their users choose scales, fonts and themes with.
set(desktop_choices
  QT_QPA_PLATFORMTHEME QT_FONT_DPI QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_AUTO_SCREEN_SCALE_FACTOR
  QT_ENABLE_HIGHDPI_SCALING QT_SCALE_FACTOR_ROUNDING_POLICY QT_USE_PHYSICAL_DPI
  XDG_CURRENT_DESKTOP XDG_SESSION_DESKTOP DESKTOP_SESSION KDE_FULL_SESSION GNOME_DESKTOP_SESSION_ID
  FREETYPE_PROPERTIES FONTCONFIG_PATH FONTCONFIG_SYSROOT)
list(TRANSFORM desktop_choices APPEND "=unset:" OUTPUT_VARIABLE ORVELLE_WITHOUT_DESKTOP_CHOICES)

# Every test runs off-screen, under one locale, with the sanitizers told to stop at the first finding.
function(orvelle_test_environment name)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  set_property(TEST ${name} PROPERTY ENVIRONMENT
    QT_QPA_PLATFORM=offscreen
    LC_ALL=C.UTF-8
    HOME=${ORVELLE_TEST_HOME}
    XDG_CONFIG_HOME=${ORVELLE_TEST_HOME}/config
    XDG_DATA_HOME=${ORVELLE_TEST_HOME}/data
    XDG_CACHE_HOME=${ORVELLE_TEST_HOME}/cache
    XDG_STATE_HOME=${ORVELLE_TEST_HOME}/state
    XDG_RUNTIME_DIR=${ORVELLE_TEST_HOME}/runtime
    UBSAN_OPTIONS=print_stacktrace=1
    LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0)
  set_property(TEST ${name} PROPERTY ENVIRONMENT_MODIFICATION ${ORVELLE_WITHOUT_DESKTOP_CHOICES})
  orvelle_test_has_fonts(${name} usual)
endfunction()

# orvelle_test_has_fonts(TEST NAME): the test finds the fonts of this name and no others, where fontconfig chooses.
function(orvelle_test_has_fonts test fonts)
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
  endif()
  set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT_MODIFICATION
    FONTCONFIG_FILE=set:${ORVELLE_TEST_HOME}/fonts-${fonts}.conf
    "ORVELLE_TEST_FONT=set:${ORVELLE_TEST_FONT_${fonts}}")
endfunction()

# orvelle_test_in_other_fonts(TEST FILTER): runs those tests of a program that FILTER names in the other fonts too.
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
