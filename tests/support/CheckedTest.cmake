# Test programs of this machine, with address and undefined-behaviour checks.

# add_checked_test(NAME <name> SOURCES <files> LIBRARIES <targets> [PROPERTIES <of each test>])
# What they link brings the checks. Tests are compiled more often than run: without optimizing, and
# with GoogleTest's headers and the library's compiled once for all, that takes a third of the time.
function(add_checked_test)
    cmake_parse_arguments(ARG "" "NAME" "SOURCES;LIBRARIES;PROPERTIES" ${ARGN})
    add_executable(${ARG_NAME} ${ARG_SOURCES})
    target_compile_options(${ARG_NAME} PRIVATE -O0)
    target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBRARIES} GTest::gtest_main)
    get_property(first GLOBAL PROPERTY first_checked_test)
    if(first)
        target_precompile_headers(${ARG_NAME} REUSE_FROM ${first})
    else()
        target_precompile_headers(${ARG_NAME} PRIVATE
            ${CMAKE_SOURCE_DIR}/tests/support/checked_precompiled.h)
        set_property(GLOBAL PROPERTY first_checked_test ${ARG_NAME})
    endif()
    gtest_discover_tests(${ARG_NAME} DISCOVERY_TIMEOUT 60 PROPERTIES ${ARG_PROPERTIES})
endfunction()
