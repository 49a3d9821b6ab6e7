# Fails if a program has a symbol that the linker merges by name (weak or unique) and whose name contains that of
# something in an anonymous namespace, which is local to a file.
# Usage: cmake -D NM=nm -D PROGRAM=file -P shared_names.cmake
execute_process(COMMAND ${NM} ${PROGRAM} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES " T main\n")
  message(FATAL_ERROR "${NM} lists no symbols of ${PROGRAM}")
endif()
string(REGEX MATCHALL "[^\n]* [uVW] [^\n]*_GLOBAL__N_[^\n]*" shared "${symbols}")
if(shared)
  list(JOIN shared "\n" lines)
  message(FATAL_ERROR "The linker merges these symbols although their names are local to a file:\n${lines}")
endif()
