# Shared part of the mingw-w64 toolchains; the including file sets TOOLCHAIN_PREFIX,
# CMAKE_SYSTEM_PROCESSOR and TESSARIN_WINE (the wine loader that runs its binaries).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${TOOLCHAIN_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TOOLCHAIN_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${TOOLCHAIN_PREFIX}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${TOOLCHAIN_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(TESSARIN_OBJDUMP ${TOOLCHAIN_PREFIX}-objdump)
# The tests run through this wine loader. Configuring a tree whose tests cannot run
# would give a suite that passes without running them, so a missing loader stops the
# configure step, unless the tree is asked to compile only.
get_property(_tessarin_in_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(EXISTS ${TESSARIN_WINE})
  set(CMAKE_CROSSCOMPILING_EMULATOR ${TESSARIN_WINE})
elseif(NOT _tessarin_in_try_compile AND NOT TESSARIN_COMPILE_ONLY)
  message(FATAL_ERROR "${TESSARIN_WINE} is missing, so the ${TOOLCHAIN_PREFIX} tests cannot "
    "run. Install it with scripts/install-deps.sh and configure again, or configure with "
    "-DTESSARIN_COMPILE_ONLY=ON to build without running tests.")
endif()
