# Plays one scenario on an empty folder of its own.
#   cmake -DPLAYER=... -DSCENARIO=... -DHOME=... -P run_scenario.cmake
file(REMOVE_RECURSE ${HOME})
file(MAKE_DIRECTORY ${HOME})
execute_process(COMMAND ${PLAYER} --home ${HOME} ${SCENARIO} RESULT_VARIABLE status)
file(REMOVE_RECURSE ${HOME})
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${SCENARIO} ended with status ${status}")
endif()
