# Flags that every target of this project is compiled with.
find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(KORVANE_WERROR)
  add_compile_options(-Werror)
endif()

# Exported functions are not replaced one by one from outside, so calls
# between them may be inlined.
add_compile_options(-fno-semantic-interposition)

if(KORVANE_SANITIZE)
  set(IGNORE_LIST ${PROJECT_SOURCE_DIR}/cmake/sanitizer_ignorelist.txt)
  add_compile_options(-fsanitize=address,undefined,integer
    -fno-sanitize-recover=all -fno-omit-frame-pointer -funsigned-char
    -fsanitize-ignorelist=${IGNORE_LIST})
  if(CCACHE)  # does not know by itself that this file matters
    set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_EXTRAFILES=${IGNORE_LIST} ${CCACHE})
  endif()
  add_compile_definitions(KORVANE_SANITIZED)
  add_link_options(-fsanitize=address,undefined,integer)
endif()

# Counted together with what other threads count.
if(KORVANE_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()

if(KORVANE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
