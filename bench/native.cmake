# Benchmarks of picture quality: built where the libraries that we are compared with are there
# (compare_pictures installs them).
find_library(IMAGEQUANT_LIBRARY imagequant)
find_library(GD_LIBRARY gd)
if(IMAGEQUANT_LIBRARY AND GD_LIBRARY)
    add_executable(picture-bench EXCLUDE_FROM_ALL picture_bench.cpp picture_baselines.cpp
        picture_metrics.cpp picture_planes.cpp picture_ssimulacra2.cpp)
    target_compile_options(picture-bench PRIVATE -O3)
    target_link_libraries(picture-bench PRIVATE pictures ${IMAGEQUANT_LIBRARY} ${GD_LIBRARY})
endif()
