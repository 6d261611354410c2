# Flags for Windows programs. The version macros are set here and nowhere else: calls that
# Windows 95 OSR2 lacks are then not even declared.
add_compile_definitions(
    WINVER=0x0400 _WIN32_WINDOWS=0x0400 _WIN32_WINNT=0x0400 _WIN32_IE=0x0300 NOMINMAX STRICT)
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-static -Wl,--gc-sections -Wl,--no-insert-timestamp)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_compile_options(-march=pentium -mtune=generic)
    add_link_options(
        -s
        -Wl,--major-os-version=4,--minor-os-version=0
        -Wl,--major-subsystem-version=4,--minor-subsystem-version=0
        -Wl,--disable-dynamicbase,--disable-nxcompat)
else()
    # Undefined behaviour ends the program at once: no run-time library is needed for that.
    add_compile_options(-fsanitize=undefined -fno-sanitize=vptr -fsanitize-undefined-trap-on-error -O1)
endif()
