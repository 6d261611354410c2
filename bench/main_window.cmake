# cmake --build ... --target bench_main_window: the main window against the bare system calls.
add_executable(main_window_bench ${CMAKE_CURRENT_LIST_DIR}/main_window_bench.cpp
    $<TARGET_OBJECTS:resources>)
add_executable(bare_list WIN32 ${CMAKE_CURRENT_LIST_DIR}/bare_list.cpp)
target_link_libraries(main_window_bench PRIVATE main_window)
target_link_libraries(bare_list PRIVATE comctl32)
set_target_properties(main_window_bench bare_list PROPERTIES EXCLUDE_FROM_ALL TRUE)
add_custom_target(bench_main_window
    COMMAND ${CMAKE_SOURCE_DIR}/scripts/run_in_wine ${CMAKE_BINARY_DIR}/wine_prefix 600
            $<TARGET_FILE:main_window_bench> $<TARGET_FILE:bare_list> $<TARGET_FILE:vistrel>
    VERBATIM USES_TERMINAL)
add_dependencies(bench_main_window main_window_bench bare_list vistrel wine_template)
