# Windows test programs: compiled with GoogleTest for Windows and run in Wine.

# Tests are compiled more often than run: without optimizing that takes half the time. What they link
# of the program is optimized as ever. The linker takes time with the square of a file's sections.
add_compile_options(-O0)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_compile_options(-fno-lto -g0 -fno-function-sections -fno-data-sections)
endif()

set(GOOGLETEST_SOURCES /usr/src/googletest)
add_library(googletest STATIC ${CMAKE_CURRENT_LIST_DIR}/googletest.cpp)
# The compiler has no threads of its own kind, so that GoogleTest goes without.
target_compile_definitions(googletest PUBLIC GTEST_IS_THREADSAFE=0 GTEST_HAS_PTHREAD=0)
target_include_directories(googletest SYSTEM
    PUBLIC ${GOOGLETEST_SOURCES}/googletest/include ${GOOGLETEST_SOURCES}/googlemock/include
    PRIVATE ${GOOGLETEST_SOURCES}/googletest ${GOOGLETEST_SOURCES}/googlemock)

add_library(windows_test STATIC
    ${CMAKE_CURRENT_LIST_DIR}/windows_main.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/user.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/clean_start.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/let_finish.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/user_menus.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/seen.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/screen_shot.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/held_objects.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/help_requests.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/openings.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/snapshot.cpp
    ${CMAKE_CURRENT_LIST_DIR}/user/started_program.cpp)
add_executable(record_opening WIN32 ${CMAKE_CURRENT_LIST_DIR}/user/record_opening.cpp)
target_link_libraries(windows_test PUBLIC googletest gdi32)
target_precompile_headers(windows_test PRIVATE ${CMAKE_CURRENT_LIST_DIR}/precompiled.h)

set(WINE_TEMPLATE ${CMAKE_BINARY_DIR}/wine_prefix)
set(scripts ${CMAKE_SOURCE_DIR}/scripts)
set(TEST_IN_WINE ${scripts}/test_in_wine)
set(MAKE_PREFIX ${scripts}/make_prefix)
set(wine_properties)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # 32-bit programs show windows in a 32-bit Debian only, which need not be where they are built: so
    # the prefix is made when the tests run.
    set(debian12 ${scripts}/debian12 wine32)
    list(PREPEND TEST_IN_WINE ${debian12})
    add_test(NAME wine_prefix COMMAND ${debian12} ${MAKE_PREFIX} --if-older ${WINE_TEMPLATE})
    set_tests_properties(wine_prefix PROPERTIES FIXTURES_SETUP wine_prefix)
    set(wine_properties FIXTURES_REQUIRED wine_prefix)
    add_custom_target(wine_template)
else()
    add_custom_command(
        OUTPUT ${WINE_TEMPLATE}/system.reg
        COMMAND ${MAKE_PREFIX} ${WINE_TEMPLATE}
        DEPENDS ${scripts}/make_prefix ${scripts}/windows98.reg ${scripts}/wine_user.sh
        COMMENT "Wine prefix for tests"
        VERBATIM)
    add_custom_target(wine_template ALL DEPENDS ${WINE_TEMPLATE}/system.reg)
endif()

# add_windows_test(NAME <name> SOURCES <files> LIBRARIES <targets>
#                  [FILES <files, folders or $<TARGET_FILE:...> to put beside the program>]
#                  [DEPENDS <targets that make FILES>] [TIMEOUT <seconds>]
#                  [REGISTRY <file of what differs from windows98.reg>] [BITS <bits a pixel>]
#                  [SIZE <pixels of the X screen, such as 640x720>]
#                  [LANGUAGE <locale whose code page programs have, such as ja_JP>])
# The target and the program are called <name>; the program's folder is its current one, C:\test.
# Building the target makes everything that `ctest -R <name>` needs.
# With PROGRAM <target> instead of SOURCES and LIBRARIES that test's program runs once more, on
# another machine.
function(add_windows_test)
    cmake_parse_arguments(ARG "" "NAME;PROGRAM;TIMEOUT;REGISTRY;SIZE;BITS;LANGUAGE"
        "SOURCES;LIBRARIES;FILES;DEPENDS" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    if(NOT ARG_PROGRAM)
        set(ARG_PROGRAM ${ARG_NAME})
        add_executable(${ARG_NAME} ${ARG_SOURCES})
        target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBRARIES} windows_test)
        target_precompile_headers(${ARG_NAME} REUSE_FROM windows_test)
        add_dependencies(${ARG_NAME} wine_template ${ARG_DEPENDS})
    endif()
    set(machine)
    if(ARG_REGISTRY)
        list(APPEND machine --registry ${ARG_REGISTRY})
    endif()
    if(ARG_SIZE)
        list(APPEND machine --size ${ARG_SIZE})
    endif()
    if(ARG_BITS)
        list(APPEND machine --bits ${ARG_BITS})
    endif()
    if(ARG_LANGUAGE)
        list(APPEND machine --language ${ARG_LANGUAGE})
    endif()
    add_test(NAME ${ARG_NAME}
        COMMAND ${TEST_IN_WINE} ${machine} ${WINE_TEMPLATE} ${ARG_TIMEOUT}
            $<TARGET_FILE:${ARG_PROGRAM}> ${ARG_FILES})
    math(EXPR limit "${ARG_TIMEOUT} + 60")
    # What takes longest begins first.
    set_tests_properties(${ARG_NAME} PROPERTIES TIMEOUT ${limit} COST ${ARG_TIMEOUT}
        ${wine_properties})
endfunction()
