# make install: libraries, headers, pkg-config files, a CMake package, the command and its pages.

include(CMakePackageConfigHelpers)

set(QUARN_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Quarn)

set_target_properties(quarn_util PROPERTIES EXPORT_NAME util)
set_target_properties(quarn_asn1 PROPERTIES EXPORT_NAME asn1)
set_target_properties(quarn_util_static PROPERTIES EXPORT_NAME util_static)
set_target_properties(quarn_asn1_static PROPERTIES EXPORT_NAME asn1_static)
install(TARGETS quarn_util quarn_asn1 quarn_util_static quarn_asn1_static EXPORT QuarnTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h")

install(EXPORT QuarnTargets NAMESPACE Quarn:: DESTINATION ${QUARN_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QuarnConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/QuarnConfig.cmake
                              INSTALL_DESTINATION ${QUARN_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuarnConfigVersion.cmake
                                 VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QuarnConfig.cmake ${PROJECT_BINARY_DIR}/QuarnConfigVersion.cmake
        DESTINATION ${QUARN_CMAKE_DIR})

# The .pc files find the prefix from where they lie, so that an installed tree can be moved.
set(QUARN_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH QUARN_PC_PREFIX /prefix/${QUARN_PKGCONFIG_DIR} /prefix)
foreach(component util asn1)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/quarn-${component}.pc.in
                 ${PROJECT_BINARY_DIR}/quarn-${component}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/quarn-${component}.pc DESTINATION ${QUARN_PKGCONFIG_DIR})
endforeach()

if(QUARN_BUILD_CLI)
  install(TARGETS quarn_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${QUARN_MAN_PAGE} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${QUARN_COMPLETION_bash}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${QUARN_COMPLETION_zsh} DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
  install(FILES ${QUARN_COMPLETION_fish}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
