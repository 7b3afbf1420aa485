# cmake -D OBJCOPY=... -D MODULE=FILE -D SOURCE=FILE.cpp -P WriteIdentity.cmake: writes the build id of a module as the
# source that defines `windowModuleIdentity`. An unchanged file is not written again.

execute_process(
  COMMAND ${OBJCOPY} --dump-section .note.gnu.build-id=${SOURCE}.note ${MODULE} /dev/null
  COMMAND_ERROR_IS_FATAL ANY)
file(READ ${SOURCE}.note note HEX)
# Three numbers and the name "GNU" stand before the id.
string(SUBSTRING "${note}" 32 -1 id)
string(LENGTH "${id}" digits)
if(NOT digits EQUAL 40)
  message(FATAL_ERROR "${MODULE} has the build id \"${id}\", not one of 20 bytes")
endif()
string(REGEX REPLACE "(..)" "0x\\1, " bytes "${id}")
file(CONFIGURE OUTPUT ${SOURCE} CONTENT "#include \"windows/window_module_identity.h\"

const unsigned char orvelle::windowModuleIdentity[20] = {${bytes}};
")
