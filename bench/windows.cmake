include(companions.cmake)
include(main_window.cmake)
include(editor.cmake)
