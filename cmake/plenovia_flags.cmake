# Warnings and sanitizers as interface targets that every module links.

add_library(plenovia_warnings INTERFACE)
target_compile_options(plenovia_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies inside std::string where there are none (GCC bug 105651).
  target_compile_options(plenovia_warnings INTERFACE -Wno-restrict)
endif()
if(PLENOVIA_WERROR)
  target_compile_options(plenovia_warnings INTERFACE -Werror)
endif()

add_library(plenovia_sanitizers INTERFACE)
if(PLENOVIA_SANITIZE)
  target_compile_options(plenovia_sanitizers INTERFACE
    -fsanitize=${PLENOVIA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(plenovia_sanitizers INTERFACE -fsanitize=${PLENOVIA_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Sanitizer code hides from GCC what is set; the sanitizers themselves look at run time.
    target_compile_options(plenovia_sanitizers INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(PLENOVIA_FUZZ)
  # The fuzzer looks for inputs that reach new code of the modules, so these must count it.
  target_compile_options(plenovia_sanitizers INTERFACE -fsanitize=fuzzer-no-link)
endif()

# A program loads only the libraries that it calls: the command line starts without the settings
# file's.
add_link_options(-Wl,--as-needed)
