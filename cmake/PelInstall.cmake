# Install rules, the CMake package (find_package(pel) gives pel::peli and
# pel::pelcore) and pel.pc.
include(CMakePackageConfigHelpers)

install(TARGETS peli pelcore EXPORT pelTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES include/peli.h include/pelcore.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT pelTargets NAMESPACE pel:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/pel)

configure_package_config_file(cmake/pelConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/pelConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/pel)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/pelConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/pelConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/pelConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/pel)

configure_file(cmake/pel.pc.in ${CMAKE_CURRENT_BINARY_DIR}/pel.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/pel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
