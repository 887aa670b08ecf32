# Cross toolchain for 32-bit Windows (posix thread model); the classic 32-bit layouts
# are checked here. Its tests run under 32-bit wine (wine32, installed by
# scripts/install-wine32.sh).
set(TOOLCHAIN_PREFIX i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(TESSARIN_WINE /usr/lib/wine/wine)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw-common.cmake)
