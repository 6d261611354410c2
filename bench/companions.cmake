# cmake --build ... --target bench_companions: the companions against bare copies, in Wine.
add_executable(bare_copy WIN32 ${CMAKE_CURRENT_LIST_DIR}/bare_copy.cpp)
add_executable(companions_bench ${CMAKE_CURRENT_LIST_DIR}/companions_bench.cpp)
set_target_properties(bare_copy companions_bench PROPERTIES EXCLUDE_FROM_ALL TRUE)
add_custom_target(bench_companions
    COMMAND ${CMAKE_SOURCE_DIR}/scripts/run_in_wine ${CMAKE_BINARY_DIR}/wine_prefix 600
            $<TARGET_FILE:companions_bench> $<TARGET_FILE:bare_copy> $<TARGET_FILE:rotaline>
            $<TARGET_FILE:shufflet> $<TARGET_FILE:mirrorkin>
    VERBATIM USES_TERMINAL)
add_dependencies(bench_companions companions_bench bare_copy rotaline shufflet mirrorkin)
if(TARGET wine_template)
    add_dependencies(bench_companions wine_template)
endif()
