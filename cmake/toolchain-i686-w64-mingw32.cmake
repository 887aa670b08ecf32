# Cross toolchain for 32-bit Windows (posix thread model); the layout checks of the
# 32-bit world are compiled here. Tests run only where a 32-bit wine exists.
set(TOOLCHAIN_PREFIX i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(TESSARIN_WINE /usr/lib/wine/wine)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw-common.cmake)
