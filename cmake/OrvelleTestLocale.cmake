# A locale that writes a decimal comma, compiled into the build folder, so that tests can show that numbers do
# not follow the locale even where the machine has none installed.

find_program(ORVELLE_LOCALEDEF localedef DOC "Compiles locales for tests, from glibc's binaries")
set(ORVELLE_TEST_LOCALES ${CMAKE_BINARY_DIR}/locales)

if(ORVELLE_LOCALEDEF AND NOT EXISTS ${ORVELLE_TEST_LOCALES}/de_DE.UTF-8)
  file(MAKE_DIRECTORY ${ORVELLE_TEST_LOCALES})
  execute_process(
    COMMAND ${ORVELLE_LOCALEDEF} -i de_DE -f UTF-8 ${ORVELLE_TEST_LOCALES}/de_DE.UTF-8
    OUTPUT_QUIET ERROR_QUIET)
endif()

# orvelle_test_german_locale(TEST): lets the test find de_DE.UTF-8; without localedef the test may skip.
function(orvelle_test_german_locale name)
  set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "LOCPATH=${ORVELLE_TEST_LOCALES}:/usr/lib/locale")
endfunction()
