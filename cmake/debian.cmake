# Debian packages, made by cpack in a build folder: korvane-helper, the module
# for scripts, and libkorvane-links-dev, the link library for native programs.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL links)
set(CPACK_PACKAGE_CONTACT "The KorvaneHelper developers <developers@localhost>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${DEBIAN_ARCHITECTURE})
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_LINKS_PACKAGE_NAME libkorvane-links-dev)
set(CPACK_DEBIAN_LINKS_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LINKS_PACKAGE_DEPENDS "libc6-dev, libstdc++-dev")
set(CPACK_DEBIAN_LINKS_DESCRIPTION
  "URLs, file names, ed2k, magnet and private links for C and C++")
install(FILES LICENSE RENAME copyright
  DESTINATION share/doc/libkorvane-links-dev COMPONENT links)

if(KORVANE_MODULE)
  list(APPEND CPACK_COMPONENTS_ALL module)
  set(CPACK_DEBIAN_MODULE_PACKAGE_NAME korvane-helper)
  set(CPACK_DEBIAN_MODULE_PACKAGE_SECTION javascript)
  set(CPACK_DEBIAN_MODULE_PACKAGE_DEPENDS
    "libc6 (>= 2.28), libgcc-s1, libstdc++6 (>= 11), libx11-6")
  set(CPACK_DEBIAN_MODULE_DESCRIPTION
    "Native module behind the script interface of a download manager")
  install(FILES LICENSE RENAME copyright
    DESTINATION share/doc/korvane-helper COMPONENT module)
endif()
include(CPack)
