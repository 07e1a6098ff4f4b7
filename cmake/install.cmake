# Installed files: libraries, headers, tool, CMake package (find_package(KZCommon), targets
# KZ::kzcommon and KZ::kzlexicon), pkg-config files and pages. Every file belongs to a component, of which
# packages.cmake makes a Debian package.
include(CMakePackageConfigHelpers)

set(dev COMPONENT libkzcommon-dev)

install(TARGETS kzcommon EXPORT KZCommonTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          COMPONENT libkzcommon${PROJECT_VERSION_MAJOR} NAMELINK_COMPONENT libkzcommon-dev)
install(DIRECTORY include/kz DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${dev})
install(TARGETS kzlexicon EXPORT KZCommonTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          COMPONENT libkzlexicon${PROJECT_VERSION_MAJOR} NAMELINK_COMPONENT libkzcommon-dev)
install(DIRECTORY include/kzlexicon DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${dev})
if(TARGET kzdic)
  install(TARGETS kzdic RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT kzdic)
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KZCommon)
install(EXPORT KZCommonTargets NAMESPACE KZ:: DESTINATION ${package_dir} ${dev})
configure_package_config_file(cmake/KZCommonConfig.cmake.in KZCommonConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(KZCommonConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KZCommonConfig.cmake
              ${PROJECT_BINARY_DIR}/KZCommonConfigVersion.cmake
        DESTINATION ${package_dir} ${dev})

# The files find the tree from where they are, so that an installed tree may be moved.
file(RELATIVE_PATH pkgconfig_to_prefix
     /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/kzcommon.pc.in kzcommon.pc @ONLY)
configure_file(cmake/kzlexicon.pc.in kzlexicon.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kzcommon.pc ${PROJECT_BINARY_DIR}/kzlexicon.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig ${dev})

# The pages keep their places in the tree, and with them the links from one to another.
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/kzcommon)
file(GLOB pages CONFIGURE_DEPENDS docs/*.md)
install(FILES ${pages} DESTINATION ${doc_dir}/docs COMPONENT kzdic-data)
install(FILES data/README.md DESTINATION ${doc_dir}/data COMPONENT kzdic-data)
install(FILES examples/read_dictionary.py examples/engine.cpp
        DESTINATION ${doc_dir}/examples COMPONENT kzdic-data)
install(FILES CHANGELOG.md DESTINATION ${doc_dir} COMPONENT kzdic-data)
