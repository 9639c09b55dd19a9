# The install tree is relocatable, and the library finds it from its own location:
#
#   bin/<platform>/   the shared library
#   bin/lcdata.xml    corrections to the locale tables (shipped empty)
#   resources/        message catalogs
#   include/          public headers
#   lib/cmake/fl_i18n, lib/pkgconfig

include(CMakePackageConfigHelpers)

set(fl_i18n_library_dir bin/${FL_I18N_PLATFORM_DIR})
set(fl_i18n_package_dir lib/cmake/fl_i18n)

install(TARGETS fl_i18n EXPORT fl_i18n_targets
  LIBRARY DESTINATION "${fl_i18n_library_dir}"
  INCLUDES DESTINATION include)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/fl" DESTINATION include
  FILES_MATCHING PATTERN "*.hpp")
install(FILES "${PROJECT_SOURCE_DIR}/src/locale_data/xml/lcdata.xml" DESTINATION bin)
install(DIRECTORY DESTINATION resources)

install(EXPORT fl_i18n_targets NAMESPACE fl:: FILE fl_i18nTargets.cmake DESTINATION "${fl_i18n_package_dir}")
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/fl_i18nConfig.cmake.in" fl_i18nConfig.cmake
  INSTALL_DESTINATION "${fl_i18n_package_dir}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(fl_i18nConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/fl_i18nConfig.cmake" "${CMAKE_CURRENT_BINARY_DIR}/fl_i18nConfigVersion.cmake"
  DESTINATION "${fl_i18n_package_dir}")

configure_file("${CMAKE_CURRENT_LIST_DIR}/fl_i18n.pc.in" fl_i18n.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/fl_i18n.pc" DESTINATION lib/pkgconfig)
