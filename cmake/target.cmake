# What the build is for, by the names of others: the script runtime's and
# Debian's for the architecture, and the number of the module interface.
set(ARCHITECTURES_x86_64 x64 amd64)
set(ARCHITECTURES_aarch64 arm64 arm64)
if(DEFINED ARCHITECTURES_${CMAKE_SYSTEM_PROCESSOR})
  list(GET ARCHITECTURES_${CMAKE_SYSTEM_PROCESSOR} 0 NODE_ARCHITECTURE)
  list(GET ARCHITECTURES_${CMAKE_SYSTEM_PROCESSOR} 1 DEBIAN_ARCHITECTURE)
else()
  set(NODE_ARCHITECTURE ${CMAKE_SYSTEM_PROCESSOR})
  set(DEBIAN_ARCHITECTURE ${CMAKE_SYSTEM_PROCESSOR})
endif()
if(KORVANE_MODULE)
  file(STRINGS ${KORVANE_NODE_DIR}/include/node/node_version.h NODE_INTERFACE
    REGEX "^#define NODE_MODULE_VERSION [0-9]+")
  string(REGEX MATCH "[0-9]+" NODE_INTERFACE "${NODE_INTERFACE}")
endif()
