# KorvaneHelper.node: the script functions, and the link library carried whole.
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
target_link_libraries(korvane_script PUBLIC script_runtime)
target_compile_definitions(korvane_script PRIVATE
  KORVANE_CLIPBOARD_LINK=L"${KORVANE_CLIPBOARD_LINK}")

add_library(KorvaneHelper MODULE korvane_helper.cc
  $<TARGET_OBJECTS:korvane_text>
  $<TARGET_OBJECTS:korvane_url>
  $<TARGET_OBJECTS:korvane_machine>
  $<TARGET_OBJECTS:korvane_display>
  $<TARGET_OBJECTS:korvane_script>)
if(RUNTIME_INTERFACE GREATER 57)
  target_sources(KorvaneHelper PRIVATE worker_entry.cc)
endif()
target_include_directories(KorvaneHelper PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(KorvaneHelper PRIVATE
  korvane_host script_runtime X11::X11)
set(KORVANE_HELPER_MAP ${CMAKE_CURRENT_SOURCE_DIR}/korvane_helper.map)
target_link_options(KorvaneHelper PRIVATE
  -Wl,--version-script=${KORVANE_HELPER_MAP} -Wl,-Bsymbolic-functions
  # Fewer mappings are made faster, and nobody waits for more than the load.
  -Wl,-z,noseparate-code)
set_target_properties(KorvaneHelper PROPERTIES
  PREFIX "" SUFFIX ".node"
  LINK_DEPENDS ${KORVANE_HELPER_MAP}
  LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/module
  BUILD_RPATH_USE_ORIGIN ON BUILD_WITH_INSTALL_RPATH ON
  INSTALL_RPATH "$ORIGIN")
