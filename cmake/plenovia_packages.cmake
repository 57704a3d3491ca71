# The libraries that the cores stand on, each as one imported target.

find_package(Threads REQUIRED)
find_package(GIF REQUIRED)
find_package(JPEG REQUIRED)
find_package(PNG REQUIRED)  # with ZLIB::ZLIB
find_package(tl-expected CONFIG REQUIRED)
find_package(CLI11 CONFIG REQUIRED)
find_package(muparser CONFIG REQUIRED)
find_package(Freetype REQUIRED)
find_package(Fontconfig REQUIRED)
find_package(tinyobjloader CONFIG REQUIRED)

if(PLENOVIA_TESTS)
  find_package(GTest REQUIRED)
endif()
