# What a user gets: the libraries, their headers, the program, a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/OPXCoreTools")
set(header_folder "${CMAKE_INSTALL_INCLUDEDIR}/OPXCoreTools")
# How installed files find each other, so that an installed tree can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE libraries_from_programs)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
  OUTPUT_VARIABLE headers_from_pkgconfig)

set_target_properties(OPXHostRuntime PROPERTIES EXPORT_NAME HostRuntime INSTALL_RPATH "$ORIGIN")
set_target_properties(OPXCoreTools PROPERTIES EXPORT_NAME CoreTools INSTALL_RPATH "$ORIGIN")
set_target_properties(OPXTreeBridge PROPERTIES EXPORT_NAME TreeBridge INSTALL_RPATH "$ORIGIN")
set_target_properties(opx-explorer PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_programs}")
install(TARGETS OPXHostRuntime OPXCoreTools OPXTreeBridge EXPORT OPXCoreTools)
install(TARGETS opx-explorer)
install(DIRECTORY HostRuntime/PublicInterfaces/ OPXCoreTools/ProtectedInterfaces/ OPXTreeBridge/PublicInterfaces/
  "${CMAKE_BINARY_DIR}/generated/OPXHostRuntime/" "${CMAKE_BINARY_DIR}/generated/OPXCoreTools/"
  "${CMAKE_BINARY_DIR}/generated/OPXTreeBridge/"
  DESTINATION "${header_folder}" FILES_MATCHING PATTERN "*.h")

install(EXPORT OPXCoreTools NAMESPACE OPX:: FILE OPXCoreToolsTargets.cmake DESTINATION "${package_folder}")
configure_package_config_file(cmake/OPXCoreToolsConfig.cmake.in "${CMAKE_BINARY_DIR}/generated/OPXCoreToolsConfig.cmake"
  INSTALL_DESTINATION "${package_folder}")
# Until 1.0 a new minor version may change what is exported.
write_basic_package_version_file("${CMAKE_BINARY_DIR}/generated/OPXCoreToolsConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/generated/OPXCoreToolsConfig.cmake" "${CMAKE_BINARY_DIR}/generated/OPXCoreToolsConfigVersion.cmake"
  DESTINATION "${package_folder}")

configure_file(cmake/OPXCoreTools.pc.in "${CMAKE_BINARY_DIR}/generated/OPXCoreTools.pc" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/generated/OPXCoreTools.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
  COMPONENT pkgconfig)
