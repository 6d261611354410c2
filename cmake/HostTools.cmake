# Programs that run on the building machine while Windows programs are built: the drawer of icons
# and sample screens, the help compiler. They are compiled with the host's own compiler, so that
# every preset builds from an empty folder without the others.

find_program(HOST_CXX NAMES c++ g++ clang++ REQUIRED NO_CMAKE_FIND_ROOT_PATH)

# add_host_tool(NAME SOURCES...): makes ${CMAKE_BINARY_DIR}/host/NAME; sets NAME_EXECUTABLE for the
# caller and the target NAME to depend on.
function(add_host_tool name)
    set(output ${CMAKE_BINARY_DIR}/host/${name})
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ REGEX "^[^/]")
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/host
        COMMAND ${HOST_CXX} -std=c++20 -O2 -Wall -Wextra -MMD -MF ${output}.d -MT ${output}
                -I${CMAKE_SOURCE_DIR} ${ARGN} -o ${output}
        DEPENDS ${ARGN}
        DEPFILE ${output}.d
        COMMENT "Host tool ${name}"
        VERBATIM)
    add_custom_target(${name} DEPENDS ${output})
    set(${name}_EXECUTABLE ${output} PARENT_SCOPE)
endfunction()
