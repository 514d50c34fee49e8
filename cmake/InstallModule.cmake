# What cmake --install gives: one folder with everything that runs (bin), headers, import libraries and the package
# that find_package(instrument_ui) reads. cpack makes two archives of it: ...-windows.zip for users has the folder of what
# runs, ...-development.zip for programmers all the rest.
include(CMakePackageConfigHelpers)

set(installed instrument_ui suite)
if(INSTRUMENT_UI_OWN_FRAMEWORK)
    list(APPEND installed framework framework_main)
    install(DIRECTORY framework/base framework/win32 DESTINATION include/framework COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "afx*.rc")
    install(FILES ${COMPILER_RUNTIME} DESTINATION bin COMPONENT windows)
endif()
install(TARGETS ${installed} EXPORT instrument_ui_targets
    RUNTIME DESTINATION bin COMPONENT windows LIBRARY DESTINATION lib COMPONENT development
    ARCHIVE DESTINATION lib COMPONENT development)
install(TARGETS workbench RUNTIME DESTINATION bin COMPONENT windows)

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
    install(FILES toolkit/${header} DESTINATION include/${folder} COMPONENT development)
    file(STRINGS "${PROJECT_SOURCE_DIR}/toolkit/${header}" lines REGEX "^#include \"")
    foreach(line ${lines})
        string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" included "${line}")
        list(APPEND open_headers ${included})
    endforeach()
endwhile()

install(DIRECTORY suite/ DESTINATION include/suite COMPONENT development FILES_MATCHING PATTERN "*.h"
    PATTERN core EXCLUDE)
install(EXPORT instrument_ui_targets NAMESPACE instrument_ui:: DESTINATION lib/cmake/instrument_ui
    COMPONENT development)

configure_package_config_file(cmake/instrument_uiConfig.cmake.in ${PROJECT_BINARY_DIR}/instrument_uiConfig.cmake
    INSTALL_DESTINATION lib/cmake/instrument_ui)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/instrument_uiConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/instrument_uiConfig.cmake ${PROJECT_BINARY_DIR}/instrument_uiConfigVersion.cmake
    DESTINATION lib/cmake/instrument_ui COMPONENT development)
# The package looks for the libraries that it names.
foreach(target ${installed})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
        install(FILES $<TARGET_FILE:${target}> DESTINATION bin COMPONENT development)
    endif()
endforeach()

set(CPACK_GENERATOR ZIP)
set(CPACK_COMPONENTS_ALL windows development)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION})
set(CPACK_ARCHIVE_WINDOWS_FILE_NAME ${CPACK_PACKAGE_FILE_NAME}-windows)
set(CPACK_ARCHIVE_DEVELOPMENT_FILE_NAME ${CPACK_PACKAGE_FILE_NAME}-development)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
