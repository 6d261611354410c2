# Builds the programs of host_tools/ in FOLDER. Two presets that are built at once wait for each other.
file(MAKE_DIRECTORY ${FOLDER})
file(LOCK ${FOLDER} DIRECTORY)
if(NOT EXISTS ${FOLDER}/build.ninja)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -G Ninja -S ${CMAKE_CURRENT_LIST_DIR}/host_tools -B ${FOLDER}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
