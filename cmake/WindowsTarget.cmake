# Flags for Windows programs. The version macros are set here and nowhere else: calls that
# Windows 95 OSR2 lacks are then not even declared.
add_compile_definitions(
    WINVER=0x0400 _WIN32_WINDOWS=0x0400 _WIN32_WINNT=0x0400 _WIN32_IE=0x0300 NOMINMAX STRICT)
# Precompiled headers have to come first, and bring it along.
set(precompiled $<OR:$<BOOL:$<TARGET_PROPERTY:PRECOMPILE_HEADERS>>,$<BOOL:$<TARGET_PROPERTY:PRECOMPILE_HEADERS_REUSE_FROM>>>)
add_compile_options(
    "$<$<AND:$<COMPILE_LANGUAGE:CXX>,$<NOT:${precompiled}>>:SHELL:-include ${CMAKE_CURRENT_LIST_DIR}/library_threads.h>")
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-static -Wl,--gc-sections -Wl,--no-insert-timestamp)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_compile_options(-march=pentium -mtune=generic)
    # g++ 12 gives these warnings for sound code of its own std::string and std::vector.
    add_compile_options(-Wno-restrict -Wno-stringop-overflow)
    # The same bytes wherever the tree lies.
    add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
    # Debian's own run-time libraries need a Pentium Pro; packaging/build_p5_runtime makes others.
    # The linker puts imports into the order of the libraries' paths: for the same bytes everywhere this
    # one is relative to the folder in which it links, the build folder.
    set(VISTREL_RUNTIME_DIR "" CACHE STRING "Folder of run-time libraries for a Pentium")
    if(VISTREL_RUNTIME_DIR)
        add_link_options(-B${VISTREL_RUNTIME_DIR}/ -L${VISTREL_RUNTIME_DIR})
    endif()
    # PROGRAM.map tells packaging/check_exe which functions stand where.
    string(APPEND CMAKE_CXX_LINK_EXECUTABLE " -Wl,-Map,<TARGET>.map")
    add_link_options(
        -s
        -Wl,--major-os-version=4,--minor-os-version=0
        -Wl,--major-subsystem-version=4,--minor-subsystem-version=0
        -Wl,--disable-dynamicbase,--disable-nxcompat)
else()
    # g++ 12 gives these where the headers of its std::string are precompiled.
    add_compile_options(-Wno-array-bounds -Wno-stringop-overflow)
    # Undefined behaviour ends the program at once: no run-time library is needed for that.
    add_compile_options(-fsanitize=undefined -fno-sanitize=vptr -fsanitize-undefined-trap-on-error -O1)
    # Beside the code objects hold what the compiler knows of it, which tests/house links; programs
    # are linked of the code.
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-flto -ffat-lto-objects>")
    add_link_options(-fno-lto)
endif()
