# cmake --build ... --target bench_editor: the Logo browser's list against the bare system calls.
add_executable(editor_bench ${CMAKE_CURRENT_LIST_DIR}/editor_bench.cpp
    $<TARGET_OBJECTS:resources>)
target_link_libraries(editor_bench PRIVATE main_window)
set_target_properties(editor_bench PROPERTIES EXCLUDE_FROM_ALL TRUE)
add_custom_target(bench_editor
    COMMAND ${CMAKE_SOURCE_DIR}/scripts/run_in_wine ${CMAKE_BINARY_DIR}/wine_prefix 600
            $<TARGET_FILE:editor_bench>
    VERBATIM USES_TERMINAL)
add_dependencies(bench_editor editor_bench wine_template)
