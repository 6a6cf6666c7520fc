# Installation: libraries, headers, a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS keli keli_static EXPORT keliTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/keli.h include/keli_spec.h include/keli_status.h include/keli_types.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT keliTargets NAMESPACE keli:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/keli)

configure_package_config_file(cmake/keliConfig.cmake.in keliConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/keli)
write_basic_package_version_file(keliConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/keliConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/keliConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/keli)

file(RELATIVE_PATH KELI_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/keli.pc.in keli.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/keli.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(TARGET keli_tool)
  install(TARGETS keli_tool DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
