# The runtime with the sanitizers' library as the first that it needs: loaded
# first as if by LD_PRELOAD, which what the runtime starts would inherit.
find_program(PATCHELF patchelf REQUIRED)
execute_process(COMMAND ${CMAKE_CXX_COMPILER}
    -print-file-name=libclang_rt.asan-${CMAKE_SYSTEM_PROCESSOR}.so
  OUTPUT_VARIABLE SANITIZERS OUTPUT_STRIP_TRAILING_WHITESPACE)
add_custom_command(OUTPUT node
  COMMAND ${PATCHELF} --add-needed ${SANITIZERS} --output node ${RUNTIME}
  DEPENDS ${RUNTIME})
add_custom_target(sanitized_runtime ALL DEPENDS node)
# A leak is known by who asked for the memory.
set(RUNTIME env ASAN_OPTIONS=malloc_context_size=2
  LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/known_leaks.txt
  ${CMAKE_CURRENT_BINARY_DIR}/node)
