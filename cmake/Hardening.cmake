# Makes a fault in memory hard to exploit, in every optimised build for Linux: calls into the C library check the size
# of what they write, a broken stack or return address ends the program, and all addresses that the loader fills in are
# read-only before main() starts. The sanitizers bring checks of their own, which these would hide.

if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux" OR CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  return()
endif()
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
# Some distributions' compilers define it already, with a lower level.
target_compile_options(vamo_options INTERFACE $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=3>)

# Control-flow protection is there for x86 alone.
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
