# Qt for the windows. What links plenovia_qt keeps to the stricter half of Qt's interface.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg PrintSupport)
if(PLENOVIA_TESTS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
endif()

# What the clipboard of an X display is asked with.
find_library(PLENOVIA_XCB_LIBRARY xcb REQUIRED)
add_library(plenovia_xcb UNKNOWN IMPORTED)
set_target_properties(plenovia_xcb PROPERTIES IMPORTED_LOCATION ${PLENOVIA_XCB_LIBRARY})

add_library(plenovia_qt INTERFACE)
target_link_libraries(plenovia_qt INTERFACE Qt6::Widgets)
target_compile_definitions(plenovia_qt INTERFACE
  QT_NO_KEYWORDS
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# plenovia_ui_module(NAME ...): plenovia_module for a room with windows.
function(plenovia_ui_module name)
  plenovia_module(${name} ${ARGN})
  target_link_libraries(${name} PUBLIC plenovia_qt)
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
endfunction()

# plenovia_window_test(NAME SOURCES ... LINK ... [SCALES ...] [DISPLAY])
#
# A test program that drives real windows on Qt's offscreen platform or, with DISPLAY, on a virtual
# X display, and is then skipped where there is none. A warning of Qt's that the test did not expect
# fails it. It also runs once for each of the display scale factors named.
function(plenovia_window_test name)
  if(NOT PLENOVIA_TESTS)
    return()
  endif()
  cmake_parse_arguments(arg "DISPLAY" "" "SOURCES;LINK;SCALES" ${ARGN})
  set(platform offscreen)
  set(display)
  if(arg_DISPLAY)
    set(platform xcb)
    set(display ${PROJECT_SOURCE_DIR}/scripts/on_display.sh)
  endif()
  plenovia_executable(${name} SOURCES ${arg_SOURCES} LINK ${arg_LINK} plenovia_window_testing)
  plenovia_test_options(${name})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  foreach(scale IN ITEMS 1 LISTS arg_SCALES)
    set(test ${name})
    if(NOT scale EQUAL 1)
      set(test ${name}_at_scale_${scale})
    endif()
    set(home ${CMAKE_CURRENT_BINARY_DIR}/${test}_home)
    file(MAKE_DIRECTORY ${home})
    file(CHMOD ${home} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_test(NAME ${test} COMMAND ${display} $<TARGET_FILE:${name}>)
    set_tests_properties(${test} PROPERTIES TIMEOUT 900 SKIP_RETURN_CODE 77 ENVIRONMENT
      "QT_QPA_PLATFORM=${platform};QT_SCALE_FACTOR=${scale};XDG_CONFIG_HOME=${home};XDG_DATA_HOME=${home};XDG_RUNTIME_DIR=${home}")
  endforeach()
endfunction()
