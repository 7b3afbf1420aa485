# Run by cpack when it has written the disk image.
foreach(image IN LISTS CPACK_PACKAGE_FILES)
  execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/notarize.sh ${image} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
