# What cmake --install gives: one folder with everything that runs (bin), headers, import libraries and the package
# that find_package(instrument_ui) reads.
include(CMakePackageConfigHelpers)

set(installed instrument_ui suite)
if(INSTRUMENT_UI_OWN_FRAMEWORK)
    list(APPEND installed framework framework_main)
    install(DIRECTORY framework/base framework/win32 DESTINATION include/framework FILES_MATCHING PATTERN "*.h")
    install(FILES ${COMPILER_RUNTIME} DESTINATION bin)
endif()
install(TARGETS ${installed} EXPORT instrument_ui_targets
    RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(TARGETS workbench RUNTIME DESTINATION bin)
install(DIRECTORY toolkit/ DESTINATION include FILES_MATCHING PATTERN "*.h" PATTERN "resources" EXCLUDE)
install(DIRECTORY suite/ DESTINATION include/suite FILES_MATCHING PATTERN "*.h")
install(EXPORT instrument_ui_targets NAMESPACE instrument_ui:: DESTINATION lib/cmake/instrument_ui)

configure_package_config_file(cmake/instrument_uiConfig.cmake.in ${PROJECT_BINARY_DIR}/instrument_uiConfig.cmake
    INSTALL_DESTINATION lib/cmake/instrument_ui)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/instrument_uiConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/instrument_uiConfig.cmake ${PROJECT_BINARY_DIR}/instrument_uiConfigVersion.cmake
    DESTINATION lib/cmake/instrument_ui)
