# Cross-build for 32-bit Windows: built and inspected here, never run (these
# machines run no 32-bit programs, Wine's included).
set(ORVANE_MINGW_TRIPLE i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR x86)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
