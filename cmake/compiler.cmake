# Compiler settings that every target of ours gets through murvane_opties(target).

find_program(CCACHE ccache)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(murvane-opties INTERFACE)
if(MSVC)
  target_compile_options(murvane-opties INTERFACE /W4 /WX /utf-8 /fp:precise)
else()
  # Contracting a*b+c into one rounding would change the last bit of results between machines.
  target_compile_options(murvane-opties INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -ffp-contract=off)
  # g++ 12 warns of overlapping copies in every optimised `"text" + std::string` (its bug 105651, mended in 13).
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(murvane-opties INTERFACE -Wno-restrict)
  endif()
endif()
# A project file may come from a stranger: what a mistake in a reader could be used for is made hard. The sanitizers
# watch more than this does, and the checked calls would stand between them and what they watch.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT MURVANE_SANITIZERS AND NOT MURVANE_FUZZ)
  target_compile_options(murvane-opties INTERFACE -fstack-protector-strong -fstack-clash-protection
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
  target_link_options(murvane-opties INTERFACE LINKER:-z,relro LINKER:-z,now)
endif()
if(WIN32)  # windows.h without its macros min and max, and without what is rarely used
  target_compile_definitions(murvane-opties INTERFACE NOMINMAX=1 WIN32_LEAN_AND_MEAN)
endif()
if(MURVANE_SANITIZERS OR MURVANE_FUZZ)
  target_compile_options(murvane-opties INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(murvane-opties INTERFACE -fsanitize=address,undefined)
endif()
if(MURVANE_FUZZ)
  target_compile_options(murvane-opties INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(MURVANE_DEKKING)
  target_compile_options(murvane-opties INTERFACE --coverage -O0)
  target_link_options(murvane-opties INTERFACE --coverage)
endif()

function(murvane_opties doel)
  target_link_libraries(${doel} PUBLIC $<BUILD_INTERFACE:murvane-opties>)
endfunction()
