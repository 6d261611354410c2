# Benchmarks of picture quality: built where the libraries that we are compared with are there
# (compare_pictures installs them).
find_library(IMAGEQUANT_LIBRARY imagequant)
find_library(GD_LIBRARY gd)
find_library(JPEG_LIBRARY jpeg)
if(IMAGEQUANT_LIBRARY AND GD_LIBRARY AND JPEG_LIBRARY)
    add_executable(picture-bench EXCLUDE_FROM_ALL picture_bench.cpp picture_baselines.cpp
        picture_imagequant.cpp picture_metrics.cpp picture_planes.cpp picture_ssimulacra2.cpp
        picture_whole_way.cpp)
    target_compile_options(picture-bench PRIVATE -O3)
    target_link_libraries(picture-bench PRIVATE pictures ${IMAGEQUANT_LIBRARY} ${GD_LIBRARY}
        ${JPEG_LIBRARY})
endif()

# What adjusting a picture takes (compare_adjusting).
add_executable(compose-bench EXCLUDE_FROM_ALL compose_bench.cpp)
target_link_libraries(compose-bench PRIVATE pictures)
