# What cmake --install gives: one folder with everything that runs (bin), headers, import libraries and the package
# that find_package(instrument_ui) reads.
include(CMakePackageConfigHelpers)

set(installed instrument_ui suite)
if(INSTRUMENT_UI_OWN_FRAMEWORK)
    list(APPEND installed framework framework_main)
    install(DIRECTORY framework/base framework/win32 DESTINATION include/framework
        FILES_MATCHING PATTERN "*.h" PATTERN "afx*.rc")
    install(FILES ${COMPILER_RUNTIME} DESTINATION bin)
endif()
install(TARGETS ${installed} EXPORT instrument_ui_targets
    RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(TARGETS workbench RUNTIME DESTINATION bin)

# Of the toolkit's headers those that instrument_ui.h brings; the others are the module's own business.
set(public_headers)
set(open_headers instrument_ui.h)
while(open_headers)
    list(POP_FRONT open_headers header)
    if(header IN_LIST public_headers OR NOT EXISTS "${PROJECT_SOURCE_DIR}/toolkit/${header}")
        continue()
    endif()
    list(APPEND public_headers ${header})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/toolkit/${header}")
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES toolkit/${header} DESTINATION include/${folder})
    file(STRINGS "${PROJECT_SOURCE_DIR}/toolkit/${header}" lines REGEX "^#include \"")
    foreach(line ${lines})
        string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" included "${line}")
        list(APPEND open_headers ${included})
    endforeach()
endwhile()

install(DIRECTORY suite/ DESTINATION include/suite FILES_MATCHING PATTERN "*.h")
install(EXPORT instrument_ui_targets NAMESPACE instrument_ui:: DESTINATION lib/cmake/instrument_ui)

configure_package_config_file(cmake/instrument_uiConfig.cmake.in ${PROJECT_BINARY_DIR}/instrument_uiConfig.cmake
    INSTALL_DESTINATION lib/cmake/instrument_ui)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/instrument_uiConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/instrument_uiConfig.cmake ${PROJECT_BINARY_DIR}/instrument_uiConfigVersion.cmake
    DESTINATION lib/cmake/instrument_ui)
