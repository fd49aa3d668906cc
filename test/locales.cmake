# Locales for the tests, made here so that the machine's own do not matter.
find_program(LOCALEDEF localedef REQUIRED)
foreach(locale en_US.UTF-8 en_US.KOI8-R tr_TR.UTF-8 zh_CN.GBK)
  string(REPLACE "." " -f " input_and_charmap ${locale})
  separate_arguments(input_and_charmap)
  add_custom_command(OUTPUT ${TEST_LOCALES}/${locale}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${TEST_LOCALES}
    COMMAND ${LOCALEDEF} --no-archive -i ${input_and_charmap}
      ${TEST_LOCALES}/${locale})
  list(APPEND LOCALE_FOLDERS ${TEST_LOCALES}/${locale})
endforeach()
add_custom_target(test_locales ALL DEPENDS ${LOCALE_FOLDERS})
