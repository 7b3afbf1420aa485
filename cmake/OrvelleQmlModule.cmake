# Builds each folder of QML into its library.

# The QML tools find all modules here, each in a folder of its name.
set(ORVELLE_QML_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

# orvelle_qml_module(TARGET URI [DEPENDENCIES...] [IMPORTS...] [QML_FILES...]): turns an existing library into the QML
# module URI and compiles its files ahead of time. A static library does not register its types by itself, so it needs a
# function for that, such as `registerPanelTypes`. DEPENDENCIES are modules whose types this module uses for properties.
# IMPORTS are imported with this module.
function(orvelle_qml_module target uri)
  cmake_parse_arguments(ARG "" "" "DEPENDENCIES;IMPORTS;QML_FILES" ${ARGN})
  find_package(Qt6 6.4 REQUIRED COMPONENTS Quick)
  string(REPLACE "." "/" folder ${uri})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}) # for the registration
  qt_add_qml_module(${target}
    URI ${uri}
    VERSION 1.0
    OUTPUT_DIRECTORY ${ORVELLE_QML_DIRECTORY}/${folder}
    RESOURCE_PREFIX / # `makeEngine` looks here; the default differs between releases of Qt
    NO_PLUGIN
    DEPENDENCIES QtQuick ${ARG_DEPENDENCIES}
    IMPORTS ${ARG_IMPORTS}
    QML_FILES ${ARG_QML_FILES})

  set_property(GLOBAL APPEND PROPERTY ORVELLE_QML_MODULES ${target}) # for tests of all modules

  orvelle_compile_generated_qml(${target})
endfunction()

# Generated QML code is built without warnings and sanitizers, because we cannot fix it. All its files include the same
# headers, so a fast build compiles those of a module as one file.
function(orvelle_compile_generated_qml target)
  set(options -w)
  if(ORVELLE_SANITIZE)
    list(APPEND options -O0 -fno-sanitize=all)
  endif()
  get_target_property(generated ${target} SOURCES)
  list(FILTER generated INCLUDE REGEX "/\\.rcc/qmlcache/.*\\.cpp$")
  if(ORVELLE_FAST_BUILD AND generated)
    set_source_files_properties(${generated} PROPERTIES HEADER_FILE_ONLY ON SKIP_AUTOGEN ON)
    list(TRANSFORM generated REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE includes)
    string(REPLACE ";" "" includes "${includes}")
    set(whole ${CMAKE_CURRENT_BINARY_DIR}/${target}_compiled_qml.cpp)
    file(CONFIGURE OUTPUT ${whole} CONTENT "${includes}")
    target_sources(${target} PRIVATE ${whole})
    set_source_files_properties(${whole} PROPERTIES OBJECT_DEPENDS "${generated}")
    set(generated ${whole})
  endif()
  set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS "${options}" SKIP_PRECOMPILE_HEADERS ON)
endfunction()
