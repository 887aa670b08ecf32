# Cross toolchain for 64-bit Windows (posix thread model), run under wine64.
set(TOOLCHAIN_PREFIX x86_64-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(TESSARIN_WINE /usr/lib/wine/wine64)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw-common.cmake)
