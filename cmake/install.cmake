# The link library for native programs: static library, headers, a CMake
# package (find_package(korvane_links), target korvane::links) and a pkg-config
# file (korvane_links).
include(CMakePackageConfigHelpers)
set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/korvane_links)

install(TARGETS korvane_links EXPORT korvane_links
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
set_target_properties(korvane_links PROPERTIES EXPORT_NAME links)
install(EXPORT korvane_links NAMESPACE korvane:: DESTINATION ${PACKAGE_FOLDER}
  FILE korvane_linksConfig.cmake)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/korvane_linksConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
configure_file(cmake/korvane_links.pc.in korvane_links.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/korvane_linksConfigVersion.cmake
  DESTINATION ${PACKAGE_FOLDER})
install(FILES ${PROJECT_BINARY_DIR}/korvane_links.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
install(DIRECTORY src/text src/host src/url
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/korvane
  FILES_MATCHING PATTERN "*.h")
