# Logic or windows: what a source includes tells which it is, in every folder. A source is a window source if it, or a
# header of ours that it includes, includes a header of the window system, or if it is named ...Windows.cpp. Every other
# one is logic and is compiled natively as well, so nobody can forget to enter a new one.

# Of the platform's headers, those that know no window.
set(windowless_headers afx.h afxcoll.h afxexcept.h afxtempl.h atlcomtime.h atlsimpstr.h atlstr.h atltime.h atltypes.h
    cstringt.h
    # Nor do the processor's.
    emmintrin.h immintrin.h xmmintrin.h)

# includes_windows(RESULT FILE FOLDER): whether the file includes the window system; FOLDER is where its "..." start.
function(includes_windows result file folder)
    get_property(known GLOBAL PROPERTY "includes_windows ${file}")
    if("${known}" STREQUAL "")
        set(known FALSE)
        set_property(GLOBAL PROPERTY "includes_windows ${file}" FALSE)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
        file(STRINGS "${file}" lines REGEX "^#include [<\"]")
        foreach(line ${lines})
            string(REGEX REPLACE "^#include [<\"]([^>\"]*).*" "\\1" header "${line}")
            if(line MATCHES "<.*\\.h>" AND NOT header IN_LIST windowless_headers)
                set(known TRUE)
            elseif(line MATCHES "\"" AND EXISTS "${folder}/${header}")
                includes_windows(inner "${folder}/${header}" "${folder}")
                if(inner)
                    set(known TRUE)
                endif()
            endif()
        endforeach()
        set_property(GLOBAL PROPERTY "includes_windows ${file}" ${known})
    endif()
    set(${result} ${known} PARENT_SCOPE)
endfunction()

# sort_sources(LOGIC WINDOWS FOLDER): tells the sources below the folder apart.
function(sort_sources logic windows folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${folder}/*.cpp")
    set(window_sources)
    foreach(source ${sources})
        includes_windows(shows "${source}" "${folder}")
        if(shows OR source MATCHES "Windows\\.cpp$")
            list(APPEND window_sources "${source}")
        endif()
    endforeach()
    if(window_sources)
        list(REMOVE_ITEM sources ${window_sources})
    endif()
    set(${logic} ${sources} PARENT_SCOPE)
    set(${windows} ${window_sources} PARENT_SCOPE)
endfunction()
