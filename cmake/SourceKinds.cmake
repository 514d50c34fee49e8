# Logic or windows: what a source includes tells which it is, in every folder. A source is a window source if it, or a
# header of ours that it includes, includes a header of the window system, or if it is named ...Windows.cpp. Every other
# one is logic and is compiled natively as well, so nobody can forget to enter a new one. What stands in an
# #ifdef _WIN32 says nothing: such a source has another way beside it.

# Of the platform's headers, those that know no window.
set(windowless_headers afx.h afxcoll.h afxexcept.h afxtempl.h atlcomtime.h atlsimpstr.h atlstr.h atltime.h atltypes.h
    cstringt.h
    # Nor do the processor's.
    emmintrin.h immintrin.h xmmintrin.h)

# includes_windows(RESULT FILE FOLDER...): how the file comes to include the window system, as "Header.h, afxwin.h", or
# nothing where it doesn't; FOLDER is where its "..." start, if not beside it.
function(includes_windows result file)
    get_property(looked GLOBAL PROPERTY "includes_windows ${file}" SET)
    if(NOT looked)
        set(by "")
        set_property(GLOBAL PROPERTY "includes_windows ${file}" "")
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
        file(STRINGS "${file}" lines REGEX "^#(include [<\"]|if|endif)")
        get_filename_component(beside "${file}" DIRECTORY)
        set(platform_depth 0) # of the #if within one for the platform, and that one
        foreach(line ${lines})
            if(line MATCHES "^#if")
                if(platform_depth GREATER 0 OR line MATCHES "^#ifn?def _WIN32$")
                    math(EXPR platform_depth "${platform_depth} + 1")
                endif()
            elseif(line MATCHES "^#endif")
                if(platform_depth GREATER 0)
                    math(EXPR platform_depth "${platform_depth} - 1")
                endif()
            elseif(platform_depth EQUAL 0 AND by STREQUAL "")
                string(REGEX REPLACE "^#include [<\"]([^>\"]*).*" "\\1" header "${line}")
                if(line MATCHES "<.*\\.h>")
                    if(NOT header IN_LIST windowless_headers)
                        set(by "${header}")
                    endif()
                else()
                    foreach(folder "${beside}" ${ARGN})
                        if(line MATCHES "\"" AND EXISTS "${folder}/${header}")
                            includes_windows(inner "${folder}/${header}" ${ARGN})
                            if(inner)
                                set(by "${header}, ${inner}")
                            endif()
                            break()
                        endif()
                    endforeach()
                endif()
            endif()
        endforeach()
        set_property(GLOBAL PROPERTY "includes_windows ${file}" "${by}")
    endif()
    get_property(by GLOBAL PROPERTY "includes_windows ${file}")
    set(${result} "${by}" PARENT_SCOPE)
endfunction()

# sort_sources(LOGIC WINDOWS FOLDER [INCLUDE_FOLDER...]): tells the sources below the folder apart. Their "..." start in
# the folder or in another one of those given.
function(sort_sources logic windows folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${folder}/*.cpp")
    set(window_sources)
    foreach(source ${sources})
        includes_windows(by "${source}" "${folder}" ${ARGN})
        if(by OR source MATCHES "Windows\\.cpp$")
            list(APPEND window_sources "${source}")
        endif()
    endforeach()
    if(window_sources)
        list(REMOVE_ITEM sources ${window_sources})
    endif()
    set(${logic} ${sources} PARENT_SCOPE)
    set(${windows} ${window_sources} PARENT_SCOPE)
endfunction()

# expect_logic(FOLDER SOURCE...): of the window sources given, none may stand below the folder, which is logic alone.
function(expect_logic folder)
    foreach(source ${ARGN})
        string(FIND "${source}" "${folder}/" place)
        if(place EQUAL 0)
            get_property(by GLOBAL PROPERTY "includes_windows ${source}")
            if(by)
                set(reason "includes the window system: ${by}")
            else()
                set(reason "is named ...Windows.cpp")
            endif()
            # Lines that begin with blanks are left as they are.
            message(FATAL_ERROR "A window source where there is logic alone, which is built natively as well.\n"
                "  ${source}\n  ${reason}\nIt has to stand outside of\n  ${folder}\nor do without.")
        endif()
    endforeach()
endfunction()
