# Programs that run on the building machine while Windows programs are built. The host's own
# compiler makes them, in one folder for all presets: whichever is built first makes them, from an
# empty folder without the others.
set(VISTREL_HOST_TOOLS ${CMAKE_SOURCE_DIR}/build/host CACHE PATH
    "Folder in which the building machine's own programs are made")
cmake_path(ABSOLUTE_PATH VISTREL_HOST_TOOLS BASE_DIRECTORY ${CMAKE_SOURCE_DIR} NORMALIZE)

set(tools)
foreach(tool draw_resources draw_samples help_compiler)
    set(${tool}_EXECUTABLE ${VISTREL_HOST_TOOLS}/${tool})
    list(APPEND tools ${${tool}_EXECUTABLE})
endforeach()
# Looks each time whether they are as new as their sources.
add_custom_target(host_tools
    COMMAND ${CMAKE_COMMAND} -D FOLDER=${VISTREL_HOST_TOOLS}
            -P ${CMAKE_CURRENT_LIST_DIR}/build_host_tools.cmake
    BYPRODUCTS ${tools}
    COMMENT "Programs for the building machine"
    VERBATIM)
