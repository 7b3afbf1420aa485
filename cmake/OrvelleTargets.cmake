# Defines how each part is built: one library target per folder, and few test programs.

option(ORVELLE_WARNINGS_AS_ERRORS "Stop the build at the first warning" OFF)
option(ORVELLE_SANITIZE "Build with sanitizers" OFF)
set(ORVELLE_SANITIZERS address,undefined CACHE STRING "The sanitizers of ORVELLE_SANITIZE")
option(ORVELLE_FAST_BUILD "Precompile headers and compile several files at once" OFF)
option(ORVELLE_BUILD_FUZZERS "Build a fuzzer for every parser of outside text (clang only)" OFF)

set(CMAKE_UNITY_BUILD ${ORVELLE_FAST_BUILD})

add_library(orvelle_build_flags INTERFACE)
target_include_directories(orvelle_build_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(orvelle_build_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(orvelle_build_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<BOOL:${ORVELLE_WARNINGS_AS_ERRORS}>:-Werror>)
if(ORVELLE_SANITIZE)
  # The standard library checks its callers, in the program and in the tests.
  target_compile_definitions(orvelle_build_flags INTERFACE _GLIBCXX_ASSERTIONS)
  target_compile_options(orvelle_build_flags INTERFACE -fno-omit-frame-pointer)
  target_link_options(orvelle_build_flags INTERFACE -fsanitize=${ORVELLE_SANITIZERS})
  set(ORVELLE_SANITIZE_OPTIONS -fsanitize=${ORVELLE_SANITIZERS} -fno-sanitize-recover=all)
endif()
if(ORVELLE_BUILD_FUZZERS)
  target_compile_options(orvelle_build_flags INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(orvelle_build_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The windows need Qt Quick, which costs 7 MB of memory and which the bar does not need. On Linux the windows are a
# module that the program loads when the first window opens. Elsewhere the program links them.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(ORVELLE_LOADS_WINDOWS ON)
else()
  set(ORVELLE_LOADS_WINDOWS OFF)
endif()

# A compiler spends most of its time on headers that nearly every file of a kind includes. Each kind of library
# precompiles them once: `plain` is without Qt; `core`, `gui` and `quick` include the headers of that Qt module.
set(ORVELLE_HEADERS_plain <algorithm> <array> <charconv> <chrono> <cmath> <cstdint> <filesystem> <fstream>
  <functional> <map> <memory> <optional> <ranges> <span> <string> <string_view> <utility> <vector>)
set(ORVELLE_HEADERS_core ${ORVELLE_HEADERS_plain} <QObject> <QTimer>)
set(ORVELLE_HEADERS_gui ${ORVELLE_HEADERS_core} <QGuiApplication> <QImage> <QPainter> <QPainterPath> <QWindow>)
set(ORVELLE_HEADERS_quick ${ORVELLE_HEADERS_gui} <QQmlEngine> <QQuickItem> <QQuickView>)
set(ORVELLE_MODULE_core Qt6::Core)
set(ORVELLE_MODULE_gui Qt6::Gui)
set(ORVELLE_MODULE_quick Qt6::Quick)

# orvelle_precompile(TARGET KIND): makes the target use the precompiled headers of KIND.
function(orvelle_precompile target kind)
  if(NOT ORVELLE_FAST_BUILD)
    return()
  endif()
  set(owner orvelle_headers_${kind})
  if(NOT TARGET ${owner})
    set(empty ${CMAKE_BINARY_DIR}/${owner}.cpp)
    file(CONFIGURE OUTPUT ${empty} CONTENT "// Only the headers before it matter.\n")
    add_library(${owner} OBJECT ${empty})
    target_link_libraries(${owner} PRIVATE orvelle_build_flags ${ORVELLE_MODULE_${kind}})
    target_compile_options(${owner} PRIVATE ${ORVELLE_SANITIZE_OPTIONS})
    target_precompile_headers(${owner} PRIVATE ${ORVELLE_HEADERS_${kind}})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${owner})
endfunction()

# orvelle_library(NAME [COMMON] [MOC] [KIND plain|core|gui|quick] SOURCES... LINK...): adds the library of a folder.
# COMMON marks a library that both the program and a loaded module use. A process must contain it only once, so it is
# shared on systems that load modules. MOC is for folders with a Q_OBJECT or Q_GADGET. KIND selects the precompiled
# headers. A library without SOURCES is an interface library of headers.
function(orvelle_library name)
  cmake_parse_arguments(ARG "COMMON;MOC" "KIND" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
  if(NOT ARG_SOURCES)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE orvelle_build_flags ${ARG_LINK})
    return()
  endif()
  set(library_type STATIC)
  if(ARG_COMMON AND ORVELLE_LOADS_WINDOWS)
    set(library_type SHARED)
    set_property(GLOBAL APPEND PROPERTY ORVELLE_SHARED_LIBRARIES ${name})
  endif()
  add_library(${name} ${library_type} ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC orvelle_build_flags ${ARG_LINK} PRIVATE ${ARG_LINK_PRIVATE})
  target_compile_options(${name} PRIVATE ${ORVELLE_SANITIZE_OPTIONS})
  set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC})
  if(library_type STREQUAL "SHARED" AND CMAKE_CXX_VISIBILITY_PRESET)
    # The program and the module use all of it. The precompiled headers hide what they declare.
    set_property(TARGET ${name} PROPERTY CXX_VISIBILITY_PRESET)
    set_property(TARGET ${name} PROPERTY VISIBILITY_INLINES_HIDDEN)
  elseif(ARG_KIND)
    orvelle_precompile(${name} ${ARG_KIND})
  endif()
endfunction()

# orvelle_program(NAME [MOC] SOURCES... LINK...): adds a program for users.
function(orvelle_program name)
  cmake_parse_arguments(ARG "MOC" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE orvelle_build_flags ${ARG_LINK})
  target_compile_options(${name} PRIVATE ${ORVELLE_SANITIZE_OPTIONS})
  set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC})
endfunction()

# orvelle_test(NAME [GUI] [MOC] SOURCES... LINK...): adds a GoogleTest program that ctest runs without a display.
# GUI provides a QGuiApplication for fonts and images; otherwise the program gets a QCoreApplication.
# Only the libraries under test are built with the sanitizers. In the tests' own files the sanitizers find nothing and
# take half of the compile time.
function(orvelle_test name)
  cmake_parse_arguments(ARG "GUI;MOC" "" "SOURCES;LINK" ${ARGN})
  set(support orvelle_test_support)
  if(ARG_GUI)
    set(support orvelle_gui_test_support)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  # These options must match the library whose precompiled headers the test uses.
  set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC} POSITION_INDEPENDENT_CODE OFF)
  target_compile_options(${name} PRIVATE -fPIC -O0)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE orvelle_build_flags ${ARG_LINK} ${support} orvelle_private_folders)
  if(ORVELLE_FAST_BUILD)
    target_precompile_headers(${name} REUSE_FROM ${support})
  endif()
  add_test(NAME ${name} COMMAND ${name})
  orvelle_test_environment(${name})
endfunction()
