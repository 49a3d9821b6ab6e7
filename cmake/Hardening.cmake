# Hardens every optimised build for Linux: calls of the C library check the size of what they write, a damaged stack or
# return address ends the program, and relocated addresses are read-only before main() starts. Sanitizer builds are left
# out: they have checks of their own, which report more.

if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux" OR CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  return()
endif()
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
# Some compilers define it by default, with a lower level.
target_compile_options(vamo_options INTERFACE $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=3>)

# Only x86 has this control-flow protection.
foreach(flag -fstack-protector-strong -fcf-protection)
  string(MAKE_C_IDENTIFIER "VAMO_COMPILER_HAS${flag}" known)
  check_cxx_compiler_flag(${flag} ${known})
  if(${known})
    target_compile_options(vamo_options INTERFACE $<${optimised}:${flag}>)
  endif()
endforeach()

set(read_only -Wl,-z,relro,-z,now)
check_linker_flag(CXX ${read_only} VAMO_LINKER_HAS_READ_ONLY)
if(VAMO_LINKER_HAS_READ_ONLY)
  target_link_options(vamo_options INTERFACE $<${optimised}:${read_only}>)
endif()
