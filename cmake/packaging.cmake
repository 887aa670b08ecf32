# What ships: `cmake --install` lays out the DLL, its import library and export list,
# the header, the help pages, the API reference and the examples, with a CMake package
# (find_package(Tessarin)) and a pkg-config file. The installer is built from the same
# tree (cmake/installer.cmake).
#   bin/Tessarin20b.dll
#   lib/Tessarin20b.lib, lib/Tessarin20b.def, lib/pkgconfig/tessarin.pc
#   lib/cmake/Tessarin/TessarinConfig.cmake, TessarinConfigVersion.cmake
#   include/tessarin.h
#   share/doc/Tessarin/help, share/doc/Tessarin/api, share/doc/Tessarin/examples
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Inside this tree the examples link the same name an installed package gives them.
add_library(Tessarin::Tessarin ALIAS Tessarin20b)

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(TESSARIN_ARCH x86-64)
else()
  set(TESSARIN_ARCH i686)
endif()
set(TESSARIN_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/Tessarin)
set(TESSARIN_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Tessarin)
# Screenshots of the real windows, taken by the test suite, shown in the help pages.
set(TESSARIN_HELP_SHOTS ${CMAKE_BINARY_DIR}/screenshots/help)

install(TARGETS Tessarin20b
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/source/Tessarin20b.def DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/tessarin.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/packaging/TessarinConfig.cmake.in
  ${CMAKE_BINARY_DIR}/packaging/TessarinConfig.cmake
  INSTALL_DESTINATION ${TESSARIN_CMAKE_DIR}
  PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR)
# The version file also refuses a package of the other word size.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/packaging/TessarinConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/packaging/TessarinConfig.cmake
              ${CMAKE_BINARY_DIR}/packaging/TessarinConfigVersion.cmake
        DESTINATION ${TESSARIN_CMAKE_DIR})
configure_file(${CMAKE_CURRENT_LIST_DIR}/packaging/tessarin.pc.in
  ${CMAKE_BINARY_DIR}/packaging/tessarin.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/packaging/tessarin.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(TESSARIN_DOCS)
  install(DIRECTORY ${TESSARIN_API_HTML}/ DESTINATION ${TESSARIN_DOC_DIR}/api)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/help/ DESTINATION ${TESSARIN_DOC_DIR}/help)
  install(DIRECTORY ${TESSARIN_HELP_SHOTS}/ DESTINATION ${TESSARIN_DOC_DIR}/help/images OPTIONAL)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/ DESTINATION ${TESSARIN_DOC_DIR}/examples)
include(${CMAKE_CURRENT_LIST_DIR}/installer.cmake)
