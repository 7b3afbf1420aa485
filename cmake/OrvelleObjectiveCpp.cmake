# The simulations of macOS compile Objective-C++ with the compiler of C++, which needs no other language.
set(ORVELLE_OBJECTIVE_CPP -x objective-c++)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 15)
  list(APPEND ORVELLE_OBJECTIVE_CPP -Wno-template-body) # the compiler's own <chrono> has errors in this language
endif()
# For files that also include headers of Qt.
set(ORVELLE_OBJECTIVE_CPP_WITH_QT ${ORVELLE_OBJECTIVE_CPP}
  -include ${CMAKE_SOURCE_DIR}/tests/support/qt_before_objective_c.h)
