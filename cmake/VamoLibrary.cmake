# The compiler options of all targets, and the function that declares a layer.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The compiler must not contract operations into fused multiply-add: the order of the operations is kept, so that all
# builds on one machine agree to the last bit.
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
              # g++ 12 warns of overlapping copies where strings are merely concatenated.
              $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              # Neither the program nor its debug information contains a path of the build machine.
              -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()
if(VAMO_WARNINGS_AS_ERRORS)
  target_compile_options(vamo_options INTERFACE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()
include(Hardening)

# vamo_library(name SOURCES cpp... [LINKS library...])
#
# A static library of the current folder. Headers are included by their path from the project's root
# ("stats/interval.h"); cmake/Includes.cmake says which folders a library may include from.
function(vamo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC vamo_options ${ARG_LINKS})
endfunction()
