# Packs the module, builds the guide's example against the archive for programmers and runs it with nothing but the
# archive for users on the path.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
run(${CPACK} --config ${BUILD}/CPackConfig.cmake -B ${WORK}/packed)
foreach(kind windows development)
    file(GLOB archive ${WORK}/packed/*-${kind}.zip)
    list(LENGTH archive count)
    if(NOT count EQUAL 1)
        message(FATAL_ERROR "one archive ...-${kind}.zip is wanted, there is: ${archive}")
    endif()
    file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${WORK}/${kind})
    file(GLOB top LIST_DIRECTORIES true ${WORK}/${kind}/*)
    file(RENAME ${top} ${WORK}/${kind}/top)
endforeach()
foreach(file include lib)
    if(EXISTS ${WORK}/windows/top/${file})
        message(FATAL_ERROR "the archive for users has ${file}")
    endif()
endforeach()

run(${CMAKE_COMMAND} -G Ninja -S ${HOST} -B ${WORK}/host -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
    -DCMAKE_BUILD_TYPE=Release -DEXAMPLE=${EXAMPLE}
    -Dinstrument_ui_DIR=${WORK}/development/top/lib/cmake/instrument_ui)
run(${CMAKE_COMMAND} --build ${WORK}/host --target example)
file(COPY ${WORK}/host/example.exe DESTINATION ${WORK}/alone)

set(ENV{WINEPATH})
execute_process(COMMAND ${RUN} ${STARTER} ${WORK}/alone/example.exe RESULT_VARIABLE status OUTPUT_QUIET ERROR_QUIET)
if(status EQUAL 0)
    message(FATAL_ERROR "the example runs without the archive, which therefore proves nothing")
endif()
set(ENV{WINEPATH} "Z:${WORK}/windows/top/bin")
run(${RUN} ${STARTER} ${WORK}/alone/example.exe)
