# How every part of the program is compiled, and how a layer is declared.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# No contraction into fused multiply-add: the order of the operations is kept, so that all builds on one
# machine agree to the last bit.
add_library(vamo_options INTERFACE)
if(MSVC)
  target_compile_options(vamo_options INTERFACE /W4 /fp:precise /utf-8)
else()
  target_compile_options(
    vamo_options
    INTERFACE -ffp-contract=off
              -Wall
              -Wextra
              -Wpedantic
              -Wconversion
              -Wshadow
              -Wzero-as-null-pointer-constant
              # g++ 12 sees overlapping copies in a plain concatenation of strings.
              $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              # Neither the program nor its debug information carries the path of the build machine.
              -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()
if(VAMO_WARNINGS_AS_ERRORS)
  target_compile_options(vamo_options INTERFACE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()

# vamo_precompile(target header...): has the target's sources begin with headers that most of them include, where that
# is wanted. A build without it sees that each source includes what it needs.
option(VAMO_PRECOMPILED "Compile faster, by precompiled headers" OFF)
function(vamo_precompile target)
  if(VAMO_PRECOMPILED)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# vamo_library(name SOURCES cpp... [LINKS library...])
#
# A static library of the current folder. Headers are included by their path from the project's root
# ("stats/interval.h"); which folders a library may include from, tests/includes.cmake holds.
function(vamo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC vamo_options ${ARG_LINKS})
endfunction()
