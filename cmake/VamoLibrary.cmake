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
              # g++ 12 sees overlapping copies in a plain concatenation of strings.
              $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              # Neither the program nor its debug information carries the path of the build machine.
              -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()
if(VAMO_WARNINGS_AS_ERRORS)
  target_compile_options(vamo_options INTERFACE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()

# vamo_library(name HEADERS h... SOURCES cpp... [LINKS library...])
#
# A static library of the current folder. Its headers are included by their path from the project's
# root ("stats/interval.h"), but the compiler finds only the headers of the libraries in LINKS and of
# what those link: the include folder of a library holds links to its own headers and to no others.
# So an include that goes up a layer does not compile.
function(vamo_library name)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_HEADERS} ${ARG_SOURCES})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(REMOVE_RECURSE ${root})
  file(MAKE_DIRECTORY ${root}/${folder})
  foreach(header IN LISTS ARG_HEADERS)
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${root}/${folder}/${header} COPY_ON_ERROR
         SYMBOLIC)
  endforeach()
  target_include_directories(${name} PUBLIC ${root})
  target_link_libraries(${name} PUBLIC vamo_options ${ARG_LINKS})
endfunction()
