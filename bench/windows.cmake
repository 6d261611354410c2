include(companions.cmake)
