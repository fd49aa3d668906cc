# Locales for the tests, made here so that the machine's own do not matter.
find_program(LOCALEDEF localedef REQUIRED)

function(add_locale name input charmap)
  add_custom_command(OUTPUT ${TEST_LOCALES}/${name}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${TEST_LOCALES}
    COMMAND ${LOCALEDEF} --no-archive -i ${input} -f ${charmap}
      ${TEST_LOCALES}/${name}
    COMMENT "Making the locale ${name}")
  list(APPEND LOCALE_FOLDERS ${TEST_LOCALES}/${name})
  set(LOCALE_FOLDERS ${LOCALE_FOLDERS} PARENT_SCOPE)
endfunction()

add_locale(en_US.UTF-8 en_US UTF-8)
add_locale(zh_CN.GBK zh_CN GBK)
add_locale(en_US.CP1252 en_US CP1252)
add_locale(en_US.KOI8-R en_US KOI8-R)
add_locale(tr_TR.UTF-8 tr_TR UTF-8)
add_custom_target(test_locales ALL DEPENDS ${LOCALE_FOLDERS})
