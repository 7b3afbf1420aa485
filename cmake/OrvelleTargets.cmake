# How every room of the house is built: one library target per folder, one test program per room.

option(ORVELLE_WARNINGS_AS_ERRORS "Stop the build at the first warning" OFF)
option(ORVELLE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(ORVELLE_BUILD_FUZZERS "Build a fuzzer for every parser of outside text (clang only)" OFF)

add_library(orvelle_build_flags INTERFACE)
target_include_directories(orvelle_build_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(orvelle_build_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(orvelle_build_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<BOOL:${ORVELLE_WARNINGS_AS_ERRORS}>:-Werror>)
if(ORVELLE_SANITIZE)
  target_compile_options(orvelle_build_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvelle_build_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ORVELLE_BUILD_FUZZERS)
  target_compile_options(orvelle_build_flags INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(orvelle_build_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The windows need Qt Quick, which costs 7 MB of memory and is not needed for the bar. On Linux they are a module
# that the program loads when the first one opens; elsewhere the program is linked with them.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(ORVELLE_LOADS_WINDOWS ON)
else()
  set(ORVELLE_LOADS_WINDOWS OFF)
endif()

# orvelle_library(NAME [COMMON] SOURCES... LINK...): a library of one folder. COMMON is for what both the program
# and a module that it loads use: there must be one of it in the process, so it is shared where modules are loaded.
# A folder with headers only is declared with no compiled source and becomes an interface library.
function(orvelle_library name)
  cmake_parse_arguments(ARG "COMMON" "" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
  set(kind STATIC)
  if(ARG_COMMON AND ORVELLE_LOADS_WINDOWS)
    set(kind SHARED)
    set_property(GLOBAL APPEND PROPERTY ORVELLE_SHARED_LIBRARIES ${name})
  endif()
  if(ARG_SOURCES)
    add_library(${name} ${kind} ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC orvelle_build_flags ${ARG_LINK} PRIVATE ${ARG_LINK_PRIVATE})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE orvelle_build_flags ${ARG_LINK})
  endif()
endfunction()

# orvelle_test(NAME [GUI] SOURCES... LINK...): a GoogleTest program that ctest runs without a display.
# GUI gives it a QGuiApplication, for fonts and images; without it there is a QCoreApplication.
function(orvelle_test name)
  cmake_parse_arguments(ARG "GUI" "" "SOURCES;LINK" ${ARGN})
  set(support orvelle_test_support)
  if(ARG_GUI)
    set(support orvelle_gui_test_support)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  # Most of a test's compile time is the framework's headers and the optimisation of its assertions.
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <QObject> <filesystem> <functional> <fstream>)
  target_compile_options(${name} PRIVATE -O0)
  target_link_libraries(${name} PRIVATE orvelle_build_flags ${ARG_LINK} ${support})
  add_test(NAME ${name} COMMAND ${name})
  orvelle_test_environment(${name})
endfunction()

# Every test runs off-screen, under one locale, with the sanitizers told to stop at the first finding.
function(orvelle_test_environment name)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-config;LC_ALL=C.UTF-8;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")
endfunction()
