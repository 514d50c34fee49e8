# Headers that nearly every source reads, compiled once. Every header still includes what it needs: the installed ones
# are compiled alone without this, and so is everything where INSTRUMENT_UI_PRECOMPILE is off (the preset windows-traps).
option(INSTRUMENT_UI_PRECOMPILE "Compile common headers once (gcc and clang)" ON)

set(common_headers <algorithm> <array> <functional> <map> <memory> <optional> <string> <utility> <vector>)
if(WIN32)
    list(PREPEND common_headers <afxcmn.h> <afxdlgs.h>)
else()
    list(PREPEND common_headers <afx.h>)
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # gcc no longer knows then that a warning's place is in a system header, and warns falsely of strings' bytes.
    set(precompiled_options -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread -Wno-restrict)
else()
    # Else the compiler's cache takes every source for changed.
    set(precompiled_options "SHELL:-Xclang -fno-pch-timestamp")
endif()

# precompile(target): for sources of the module and its programs. precompile(target TESTS): with GoogleTest besides.
# The first target of a kind compiles the headers and the others of that kind share them.
function(precompile target)
    if(NOT INSTRUMENT_UI_PRECOMPILE OR MSVC)
        return()
    endif()
    set(kind "${ARGN}") # not ARGV1, which a calling function may have
    set(owner precompiled_headers${kind})
    if(NOT TARGET ${owner})
        set(source "${PROJECT_BINARY_DIR}/${owner}.cpp")
        file(CONFIGURE OUTPUT "${source}" CONTENT "// Nothing but the precompiled headers.\n")
        add_library(${owner} OBJECT "${source}")
        target_link_libraries(${owner} PRIVATE framework project_settings)
        set(headers ${common_headers})
        if(kind STREQUAL "TESTS")
            target_link_libraries(${owner} PRIVATE gtest)
            list(APPEND headers <gtest/gtest.h>)
        endif()
        target_precompile_headers(${owner} PRIVATE ${headers})
        target_compile_options(${owner} PRIVATE ${precompiled_options})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${owner})
    get_target_property(type ${target} TYPE)
    if(NOT WIN32 AND type STREQUAL "EXECUTABLE")
        # As in the libraries that share the headers; clang tells the two kinds of code that may stand anywhere apart.
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
    target_compile_options(${target} PRIVATE ${precompiled_options})
endfunction()
