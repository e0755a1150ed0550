# Installation: both libraries, the headers, the tool, and what find_package and pkg-config need.
include(CMakePackageConfigHelpers)

install(TARGETS vorq vorqmodel EXPORT vorqTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS vorq_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/vorq ${PROJECT_SOURCE_DIR}/frame/vorq_solver.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/vorqmodel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vorq)
install(EXPORT vorqTargets NAMESPACE vorq:: DESTINATION ${package_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/vorqConfig.cmake.in ${PROJECT_BINARY_DIR}/vorqConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vorqConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vorqConfig.cmake ${PROJECT_BINARY_DIR}/vorqConfigVersion.cmake
        DESTINATION ${package_dir})

# The files of pkg-config find the prefix from where they lie, so that an installed tree can be moved.
file(RELATIVE_PATH VORQ_PREFIX_FROM_PKGCONFIG /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(library IN ITEMS vorq vorqmodel)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${library}.pc.in ${PROJECT_BINARY_DIR}/${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${library}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
