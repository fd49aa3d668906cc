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
# A leak is known by who asked for the memory. Tests that watch the process's
# size allow for little freed memory that is kept aside; others preload a
# library.
string(JOIN : ASAN_OPTIONS malloc_context_size=2 quarantine_size_mb=16
  verify_asan_link_order=0)
set(RUNTIME ${CMAKE_COMMAND} -E env ASAN_OPTIONS=${ASAN_OPTIONS}
  LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/known_leaks.txt
  ${CMAKE_CURRENT_BINARY_DIR}/node)
