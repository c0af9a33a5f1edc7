# Writes OUTPUT, the rows of the table in StackArguments.cpp: of each function in the import LIBRARIES
# of 32-bit Windows, as NM lists them (`_CreateFontA@56`), its name and the bytes of its arguments.
set(rows)
foreach(library IN LISTS LIBRARIES)
  execute_process(COMMAND ${NM} ${library} OUTPUT_VARIABLE symbols ERROR_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL " T _[A-Za-z0-9_]+@[0-9]+" symbols "${symbols}")
  list(TRANSFORM symbols REPLACE " T _(.*)@(.*)" "{\"\\1\", \\2},")
  list(APPEND rows ${symbols})
endforeach()
list(REMOVE_DUPLICATES rows)
list(JOIN rows "\n" text)
file(WRITE ${OUTPUT} "${text}\n")
