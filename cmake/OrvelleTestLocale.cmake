# Compiles a locale with a decimal comma into the build folder. With it the tests prove that numbers do not follow the
# locale, even on a machine without such a locale.

find_program(ORVELLE_LOCALEDEF localedef DOC "Compiles locales for tests, from glibc's binaries")
set(ORVELLE_TEST_LOCALES ${CMAKE_BINARY_DIR}/locales)

if(ORVELLE_LOCALEDEF AND NOT EXISTS ${ORVELLE_TEST_LOCALES}/de_DE.UTF-8)
  file(MAKE_DIRECTORY ${ORVELLE_TEST_LOCALES})
  execute_process(
    COMMAND ${ORVELLE_LOCALEDEF} -i de_DE -f UTF-8 ${ORVELLE_TEST_LOCALES}/de_DE.UTF-8
    OUTPUT_QUIET ERROR_QUIET)
endif()

# orvelle_test_german_locale(TEST): lets the test find de_DE.UTF-8. The test may skip without localedef.
function(orvelle_test_german_locale name)
  set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "LOCPATH=${ORVELLE_TEST_LOCALES}:/usr/lib/locale")
endfunction()
