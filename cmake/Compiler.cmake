# What every target of the project is compiled with.

option(KAVREL_WARNINGS_ARE_ERRORS "A warning stops the build; for those who change the program" OFF)

# What most sources include is compiled once for all of them, in every build alike: what one machine compiles, all do.
function(kavrel_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN} <algorithm> <functional> <map> <memory> <optional> <string>
                            <string_view> <vector>)
endfunction()

# What goes aboard is hardened as Debian hardens its own programs, and knows nothing of the folder it was built in. Of every
# target, so that none is forgotten; a library that needs more than position-independent programs says so behind it.
if(NOT WIN32 AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  string(APPEND CMAKE_CXX_FLAGS_RELEASE " -fPIE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -Wformat"
                                        " -Werror=format-security -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
  string(APPEND CMAKE_EXE_LINKER_FLAGS_RELEASE " -pie -Wl,-z,relro,-z,now,--as-needed")
endif()

add_library(kavrel_flags INTERFACE)
target_include_directories(kavrel_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(kavrel_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(KAVREL_WARNINGS_ARE_ERRORS)
  # A compiler newer or older than ours may warn of what is right; whoever only wants the program still gets it.
  target_compile_options(kavrel_flags INTERFACE -Werror)
endif()
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
