# Plays one scenario on an empty folder of its own, WAY being `undrawn` or `drawn`.
#   cmake -DPLAYER=... -DWAY=... -DSCENARIO=... -DHOME=... -P run_scenario.cmake
file(REMOVE_RECURSE ${HOME})
file(MAKE_DIRECTORY ${HOME})
set(options --home ${HOME})
if(WAY STREQUAL drawn)
  list(APPEND options --drawn)
endif()
execute_process(COMMAND ${PLAYER} ${options} ${SCENARIO} RESULT_VARIABLE status)
file(REMOVE_RECURSE ${HOME})
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${SCENARIO} ended with status ${status}")
endif()
