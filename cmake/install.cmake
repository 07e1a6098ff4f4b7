# Installed files: libraries, headers, tool, CMake package (find_package(KZCommon), targets
# KZ::kzcommon and KZ::kzlexicon) and pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS kzcommon kzlexicon EXPORT KZCommonTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/kz include/kzlexicon DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(TARGET kzdic)
  install(TARGETS kzdic RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KZCommon)
install(EXPORT KZCommonTargets NAMESPACE KZ:: DESTINATION ${package_dir})
configure_package_config_file(cmake/KZCommonConfig.cmake.in KZCommonConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(KZCommonConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KZCommonConfig.cmake
              ${PROJECT_BINARY_DIR}/KZCommonConfigVersion.cmake
        DESTINATION ${package_dir})

# The file finds the tree from where it stands, so that an installed tree may be moved.
file(RELATIVE_PATH pkgconfig_to_prefix
     /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/kzcommon.pc.in kzcommon.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kzcommon.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
