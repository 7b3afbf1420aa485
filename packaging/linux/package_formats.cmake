# Read by cpack for each format. The packager of .deb strips files itself, once it has copied their debug symbols.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_STRIP_FILES ON)
endif()
