# How every folder of QML is built into its library.

# Where the tools for QML find all modules, each in the folder of its name.
set(ORVELLE_QML_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

# orvelle_qml_module(TARGET URI [DEPENDENCIES...] [IMPORTS...] [QML_FILES...]): makes the library, which was declared
# before, the QML module of that name. Its files are compiled ahead of time. A static library does not register its
# types by itself: it needs a function of its own for that, such as `registerPanelTypes`. DEPENDENCIES are modules
# whose types the properties of this one have; IMPORTS come with every import of this one.
function(orvelle_qml_module target uri)
  cmake_parse_arguments(ARG "" "" "DEPENDENCIES;IMPORTS;QML_FILES" ${ARGN})
  find_package(Qt6 6.4 REQUIRED COMPONENTS Quick)
  string(REPLACE "." "/" folder ${uri})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}) # for the registration
  qt_add_qml_module(${target}
    URI ${uri}
    VERSION 1.0
    OUTPUT_DIRECTORY ${ORVELLE_QML_DIRECTORY}/${folder}
    RESOURCE_PREFIX / # where `makeEngine` looks; its default differs between releases of Qt
    NO_PLUGIN
    DEPENDENCIES QtQuick ${ARG_DEPENDENCIES}
    IMPORTS ${ARG_IMPORTS}
    QML_FILES ${ARG_QML_FILES})

  set_property(GLOBAL APPEND PROPERTY ORVELLE_QML_MODULES ${target}) # for tests that hold for all modules

  orvelle_compile_generated_qml(${target})
endfunction()

# What the QML compiler writes is not ours to keep free of warnings, nor to search for faults. Its files read the same
# headers each, so a fast build compiles those of a module as one.
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
