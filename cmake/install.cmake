# What users get: both libraries, the headers of the four modules, a pkg-config file and a CMake package; quill-inspect,
# when it is built.
include(CMakePackageConfigHelpers)

set_target_properties(quill_shared PROPERTIES EXPORT_NAME quill)
install(TARGETS quill_shared quill_static EXPORT quillTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(module co nx loc quill)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/source/${module} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
          FILES_MATCHING PATTERN "*.h" PATTERN "*_internal.h" EXCLUDE)
endforeach()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/quill)
install(EXPORT quillTargets NAMESPACE quill:: DESTINATION ${package_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/quillConfig.cmake.in ${PROJECT_BINARY_DIR}/quillConfig.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/quillConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quillConfig.cmake ${PROJECT_BINARY_DIR}/quillConfigVersion.cmake
        DESTINATION ${package_dir})

# The pkg-config file finds the prefix from where it lies itself, so that a moved or staged installation works.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir} ${CMAKE_INSTALL_PREFIX})
configure_file(${PROJECT_SOURCE_DIR}/cmake/quill.pc.in ${PROJECT_BINARY_DIR}/quill.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quill.pc DESTINATION ${pkgconfig_dir})

# The tool finds the library from where it lies itself, too.
if(TARGET quill-inspect)
  file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(quill-inspect PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
  install(TARGETS quill-inspect RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
