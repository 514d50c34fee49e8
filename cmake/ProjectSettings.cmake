# Settings that hold for all of our own code.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(CCACHE ccache)
if(CCACHE)
    # What makes ccache keep objects that were compiled with precompiled headers, which it reads only once then. It must
    # not preprocess: that would take the former precompiled headers for what is in the new ones.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros
        CCACHE_INODECACHE=1 CCACHE_DEPEND=1 "${CCACHE}")
    set(CMAKE_C_COMPILER_LAUNCHER "${CCACHE}")
endif()

# Linked by every target of ours: warnings, character set, Windows version.
add_library(project_settings INTERFACE)
if(MSVC)
    # Exported classes have members of the standard library: module and host share one runtime (4251, 4275).
    target_compile_options(project_settings INTERFACE /W4 /WX /wd4251 /wd4275 /utf-8 /permissive-)
else()
    target_compile_options(project_settings INTERFACE -Wall -Wextra -Werror)
endif()
if(WIN32)
    target_compile_definitions(project_settings INTERFACE UNICODE _UNICODE _AFXDLL _WIN32_WINNT=0x0A00 WINVER=0x0A00
        NOMINMAX)
else()
    target_compile_definitions(project_settings INTERFACE $<$<CONFIG:Debug>:_DEBUG>)
endif()

set(sanitizer_options)
if(INSTRUMENT_UI_SANITIZE)
    set(sanitizer_options -O1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${sanitizer_options} -g)
    add_link_options(${sanitizer_options})
endif()

if(INSTRUMENT_UI_TRAPS)
    # There is no run-time library for reports. A null object may be asked for its handle, as MFC allows.
    add_compile_options(-fsanitize=undefined -fno-sanitize=null,vptr -fsanitize-undefined-trap-on-error)
endif()

if(MINGW)
    # The compiler's run-time libraries stand beside the programs, so that the folder can be copied as it is.
    foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${name}
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(NOT IS_ABSOLUTE "${path}")
            find_file(path_${name} ${name} PATHS /usr/x86_64-w64-mingw32/lib NO_DEFAULT_PATH
                NO_CMAKE_FIND_ROOT_PATH REQUIRED)
            set(path "${path_${name}}")
        endif()
        list(APPEND COMPILER_RUNTIME "${path}")
        file(COPY "${path}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    endforeach()
endif()
