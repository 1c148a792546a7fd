# Cross-build for Windows with Debian's mingw-w64 (posix threads), static:
# 64-bit unless a toolchain file that includes this one names another target.
if(NOT ORVANE_MINGW_TRIPLE)
  set(ORVANE_MINGW_TRIPLE x86_64-w64-mingw32)
  set(CMAKE_SYSTEM_PROCESSOR x86_64)
  # Test programs run under Wine, which runs 64-bit programs only here.
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/lib/wine-exec)
endif()
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${ORVANE_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ORVANE_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${ORVANE_MINGW_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${ORVANE_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
