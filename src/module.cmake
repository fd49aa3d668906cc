# KorvaneHelper.node: the script functions, and the link library carried whole.
if(NOT EXISTS ${KORVANE_NODE_DIR}/include/node/node.h)
  message(FATAL_ERROR
    "No runtime headers in KORVANE_NODE_DIR=${KORVANE_NODE_DIR}: "
    "run 'npm ci', or name a folder that holds include/node/node.h")
endif()

add_layer(korvane_machine linux_shell.cc)
add_layer(korvane_display dpi_interface.cc x_window.cc)
target_link_libraries(korvane_display PUBLIC X11::X11)

add_library(korvane_script OBJECT
  callback_holder.cc
  korvane_helper_clipboard.cc
  korvane_helper_completion.cc
  korvane_helper_identity.cc
  korvane_helper_network.cc
  korvane_helper_shell.cc
  korvane_helper_system.cc
  korvane_helper_window.cc
  script_values.cc)
target_include_directories(korvane_script PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_include_directories(korvane_script SYSTEM PUBLIC
  ${KORVANE_NODE_DIR}/include/node)
target_compile_definitions(korvane_script PRIVATE
  KORVANE_CLIPBOARD_LINK=L"${KORVANE_CLIPBOARD_LINK}")

add_library(KorvaneHelper MODULE korvane_helper.cc
  $<TARGET_OBJECTS:korvane_text>
  $<TARGET_OBJECTS:korvane_url>
  $<TARGET_OBJECTS:korvane_machine>
  $<TARGET_OBJECTS:korvane_display>
  $<TARGET_OBJECTS:korvane_script>)
target_include_directories(KorvaneHelper PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_include_directories(KorvaneHelper SYSTEM PRIVATE
  ${KORVANE_NODE_DIR}/include/node)
target_link_libraries(KorvaneHelper PRIVATE korvane_host X11::X11)
set(KORVANE_HELPER_MAP ${CMAKE_CURRENT_SOURCE_DIR}/korvane_helper.map)
target_link_options(KorvaneHelper PRIVATE
  -Wl,--version-script=${KORVANE_HELPER_MAP} -Wl,-Bsymbolic-functions)
set_target_properties(KorvaneHelper PROPERTIES
  PREFIX "" SUFFIX ".node"
  LINK_DEPENDS ${KORVANE_HELPER_MAP}
  LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/module
  BUILD_RPATH_USE_ORIGIN ON BUILD_WITH_INSTALL_RPATH ON
  INSTALL_RPATH "$ORIGIN")
