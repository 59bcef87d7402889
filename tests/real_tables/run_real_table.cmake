# Converts a real table from first click to last and holds the load file against what awk makes of
# the same table, WAY being `undrawn` or `drawn`.
#   cmake -DPLAYER=... -DWAY=... -DTABLE=... -DCOLUMNS="-v;station=2;..." -DSCENARIO=... -DHOME=... -P ...
file(REMOVE_RECURSE ${HOME})
file(MAKE_DIRECTORY ${HOME})
set(ENV{LC_ALL} C)
execute_process(
  COMMAND awk ${COLUMNS} -f ${CMAKE_CURRENT_LIST_DIR}/load_file.awk ${TABLE}
  OUTPUT_FILE ${HOME}/expected COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${HOME}/expected size)
if(size EQUAL 0)
  message(FATAL_ERROR "awk found no result in ${TABLE}")
endif()
set(options --home ${HOME})
if(WAY STREQUAL drawn)
  list(APPEND options --drawn)
endif()
execute_process(
  COMMAND ${PLAYER} ${options} --with TABLE=${TABLE} --with EXPECTED=${HOME}/expected
          ${SCENARIO}
  RESULT_VARIABLE status)
file(REMOVE_RECURSE ${HOME})
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${SCENARIO} ended with status ${status}")
endif()
