# Install rules, the CMake package (find_package(pel) gives pel::peli and
# pel::pelcore) and pel.pc.
include(CMakePackageConfigHelpers)

# libpeli needs libpelcore, which a consumer's own run path does not cover
# (it is an indirect dependency): look next to libpeli first.
set_target_properties(peli PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS peli pelcore EXPORT pelTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
file(GLOB pel_public_headers ${PROJECT_SOURCE_DIR}/include/*.h)
install(FILES ${pel_public_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT pelTargets NAMESPACE pel:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/pel)

configure_package_config_file(cmake/pelConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/pelConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/pel)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/pelConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/pelConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/pelConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/pel)

# pel.pc finds the prefix from its own location, so the package still works
# when installed with "cmake --install --prefix" elsewhere than configured or
# moved afterwards. Absolute install directories are written as they are.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(PEL_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
  set(PEL_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
  file(RELATIVE_PATH _pel_pc_up "/root/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/root")
  string(REGEX REPLACE "/$" "" _pel_pc_up "${_pel_pc_up}")
  set(PEL_PC_PREFIX "\${pcfiledir}/${_pel_pc_up}")
  set(PEL_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(PEL_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
else()
  set(PEL_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file(cmake/pel.pc.in ${CMAKE_CURRENT_BINARY_DIR}/pel.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/pel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
