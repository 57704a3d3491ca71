# The libraries that the cores stand on, each as one imported target.

find_package(Threads REQUIRED)
find_package(GIF REQUIRED)
find_package(JPEG REQUIRED)
find_package(PNG REQUIRED)
find_package(tl-expected CONFIG REQUIRED)
find_package(CLI11 CONFIG REQUIRED)

find_path(SIMPLEINI_INCLUDE_DIR SimpleIni.h REQUIRED)
find_library(SIMPLEINI_LIBRARY simpleini REQUIRED)
add_library(plenovia_simpleini UNKNOWN IMPORTED)
set_target_properties(plenovia_simpleini PROPERTIES
  IMPORTED_LOCATION ${SIMPLEINI_LIBRARY}
  INTERFACE_INCLUDE_DIRECTORIES ${SIMPLEINI_INCLUDE_DIR})

if(PLENOVIA_TESTS)
  find_package(GTest REQUIRED)
endif()
