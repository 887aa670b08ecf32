# GoogleTest from Debian's source package, built with whatever compiler this build uses.
set(GTEST_SOURCE_DIR /usr/src/googletest CACHE PATH "GoogleTest sources")
if(NOT EXISTS ${GTEST_SOURCE_DIR}/CMakeLists.txt)
  message(FATAL_ERROR "GoogleTest sources not found in ${GTEST_SOURCE_DIR} (install Debian's googletest)")
endif()
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(${GTEST_SOURCE_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
