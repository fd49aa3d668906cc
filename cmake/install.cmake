# The link library for native programs: static library, headers, a CMake
# package (find_package(korvane_links), target korvane::links) and a pkg-config
# file (korvane_links).
include(CMakePackageConfigHelpers)
set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/korvane_links)
set(PKG_CONFIG_FOLDER ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
# Where the prefix is from there: an installed tree may be moved.
file(RELATIVE_PATH PREFIX_OF_PKG_CONFIG /${PKG_CONFIG_FOLDER} /)

install(TARGETS korvane_links EXPORT korvane_links
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT links)
set_target_properties(korvane_links PROPERTIES EXPORT_NAME links)
install(EXPORT korvane_links NAMESPACE korvane:: DESTINATION ${PACKAGE_FOLDER}
  FILE korvane_linksConfig.cmake COMPONENT links)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/korvane_linksConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
configure_file(cmake/korvane_links.pc.in korvane_links.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/korvane_linksConfigVersion.cmake
  DESTINATION ${PACKAGE_FOLDER} COMPONENT links)
install(FILES ${PROJECT_BINARY_DIR}/korvane_links.pc
  DESTINATION ${PKG_CONFIG_FOLDER} COMPONENT links)
install(DIRECTORY include/korvane
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT links)

# The module for scripts, laid out as in the npm package; the loader finds it.
if(KORVANE_MODULE)
  set(MODULE_PACKAGE_FOLDER lib/korvane-helper)
  install(TARGETS KorvaneHelper korvane_host
    LIBRARY COMPONENT module DESTINATION
      ${MODULE_PACKAGE_FOLDER}/prebuilds/linux-${NODE_ARCHITECTURE}/interface-${NODE_INTERFACE})
  install(FILES index.js index.d.ts package.json
    DESTINATION ${MODULE_PACKAGE_FOLDER} COMPONENT module)
endif()
