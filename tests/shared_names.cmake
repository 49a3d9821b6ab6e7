# Fails where a program has entries that the linker merges by name (weak or unique ones) whose name holds
# that of something in an anonymous namespace, which is local to a file. Usage: cmake -D NM=nm -D PROGRAM=file -P shared_names.cmake
execute_process(COMMAND ${NM} ${PROGRAM} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES " T main\n")
  message(FATAL_ERROR "${NM} tells no symbols of ${PROGRAM}")
endif()
string(REGEX MATCHALL "[^\n]* [uVW] [^\n]*_GLOBAL__N_[^\n]*" shared "${symbols}")
if(shared)
  list(JOIN shared "\n" lines)
  message(FATAL_ERROR "Shared between files by a name that is local to one:\n${lines}")
endif()
