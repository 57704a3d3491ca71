# plenovia_module(NAME [SHARED] SOURCES ... [HEADERS ...] [LINK ...] [PUBLIC_LINK ...])
#
# Makes the library NAME of one room. Includes are written from the project's root. With
# PLENOVIA_LONE_HEADERS each header named in HEADERS is also compiled alone, so that it includes what
# it uses.
function(plenovia_module name)
  cmake_parse_arguments(arg "SHARED" "" "SOURCES;HEADERS;LINK;PUBLIC_LINK" ${ARGN})
  set(kind STATIC)
  if(arg_SHARED)
    set(kind SHARED)
  endif()
  set(alone)
  set(probed)
  if(PLENOVIA_LONE_HEADERS)
    set(probed ${arg_HEADERS})
  endif()
  foreach(header IN LISTS probed)
    set(probe ${CMAKE_CURRENT_BINARY_DIR}/compiles_alone/${header}.cpp)
    file(RELATIVE_PATH from_root ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/${header})
    file(CONFIGURE OUTPUT ${probe} CONTENT "#include \"${from_root}\"\n#include \"${from_root}\"\n")
    list(APPEND alone ${probe})
  endforeach()
  add_library(${name} ${kind} ${arg_SOURCES} ${arg_HEADERS} ${alone})
  target_compile_features(${name} PUBLIC cxx_std_20)
  set_target_properties(${name} PROPERTIES
    CXX_EXTENSIONS OFF POSITION_INDEPENDENT_CODE ON)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name}
    PUBLIC ${arg_PUBLIC_LINK}
    PRIVATE ${arg_LINK} plenovia_warnings plenovia_sanitizers)
endfunction()

# plenovia_executable(NAME SOURCES ... LINK ...)
function(plenovia_executable name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_compile_features(${name} PRIVATE cxx_std_20)
  set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${arg_LINK} plenovia_warnings plenovia_sanitizers)
endfunction()

# plenovia_program(NAME)
#
# Makes an executable one of the programs that are installed. The build tree is laid out as the
# installation, so one path to the figure library fits both.
function(plenovia_program name)
  file(RELATIVE_PATH library_from_program
    /${CMAKE_INSTALL_BINDIR} /${plenovia_private_libraries})
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "$ORIGIN/${library_from_program}")
  install(TARGETS ${name})
endfunction()

# plenovia_install_compressed(FILE FOLDER): as manuals and changelogs are installed.
function(plenovia_install_compressed file folder)
  get_filename_component(name ${file} NAME)
  set(compressed ${CMAKE_CURRENT_BINARY_DIR}/compressed/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/compressed)
  add_custom_command(OUTPUT ${compressed}
    COMMAND gzip -9nc ${file} > ${compressed} DEPENDS ${file} VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${folder})
endfunction()

# plenovia_test_options(NAME): a test program is quicker to compile than to run with all
# optimisations.
function(plenovia_test_options name)
  target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>)
endfunction()

# plenovia_test(NAME SOURCES ... LINK ...)
#
# Makes the GoogleTest program NAME of one room and registers it with CTest. It links that room
# (and what the room's tests share from testing/) only.
function(plenovia_test name)
  if(NOT PLENOVIA_TESTS)
    return()
  endif()
  plenovia_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE plenovia_testing GTest::gtest_main)
  plenovia_test_options(${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()
