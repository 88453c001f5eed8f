# What every target of the project is compiled with.

option(KAVREL_CCACHE "Use ccache where it is installed" ON)
find_program(CCACHE ccache)
if(KAVREL_CCACHE AND CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Without ccache every source is compiled anew, so what most of them include is compiled once for all. With ccache the
# precompiled header would only make the cache miss; that build also shows an include that is missing.
function(kavrel_precompile target)
  if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    target_precompile_headers(${target} PRIVATE ${ARGN} <algorithm> <functional> <map> <memory> <optional> <string>
                              <string_view> <vector>)
  endif()
endfunction()

add_library(kavrel_flags INTERFACE)
target_include_directories(kavrel_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(kavrel_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in "text" + string when it optimizes; there are none (its bug 105329).
  target_compile_options(kavrel_flags INTERFACE $<$<CONFIG:Release>:-Wno-restrict>)
endif()
if(KAVREL_SANITIZE)
  target_compile_options(kavrel_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                -fno-omit-frame-pointer)
  target_link_options(kavrel_flags INTERFACE -fsanitize=address,undefined)
endif()
if(KAVREL_FUZZ)
  # Coverage for the fuzzer goes into the library too; only the targets link its main().
  target_compile_options(kavrel_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                -fno-sanitize-recover=all)
  target_link_options(kavrel_flags INTERFACE -fsanitize=address,undefined)
endif()
