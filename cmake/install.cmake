# The link library for native programs: static library, headers, a CMake
# package (find_package(korvane_links), target korvane::links) and a pkg-config
# file (korvane_links).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/korvane_links)
set(PKG_CONFIG_FOLDER ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
# Where the prefix is from there: an installed tree may be moved.
file(RELATIVE_PATH PREFIX_OF_PKG_CONFIG /${PKG_CONFIG_FOLDER} /)

install(TARGETS korvane_links EXPORT korvane_links
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT links
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/korvane
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT links)
install(EXPORT korvane_links NAMESPACE korvane:: DESTINATION ${PACKAGE_FOLDER}
  FILE korvane_linksConfig.cmake COMPONENT links)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/korvane_linksConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/korvane_linksConfigVersion.cmake
  DESTINATION ${PACKAGE_FOLDER} COMPONENT links)
configure_file(cmake/korvane_links.pc.in korvane_links.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/korvane_links.pc
  DESTINATION ${PKG_CONFIG_FOLDER} COMPONENT links)

# The module where the npm package has it; script/package collects it.
if(KORVANE_MODULE)
  install(TARGETS KorvaneHelper korvane_host
    LIBRARY COMPONENT module EXCLUDE_FROM_ALL DESTINATION
      prebuilds/linux-${NODE_ARCHITECTURE}/abi-${NODE_ABI})
endif()
