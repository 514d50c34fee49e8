# Installs the module into a fresh folder, builds the host program against the package there, and runs it beside the
# installed libraries.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nended with ${status}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -G Ninja -S ${HOST} -B ${WORK}/host -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
    -DCMAKE_BUILD_TYPE=Release -DEXAMPLE=${EXAMPLE}
    -Dinstrument_ui_DIR=${WORK}/installed/lib/cmake/instrument_ui)
run(${CMAKE_COMMAND} --build ${WORK}/host)
file(COPY ${WORK}/host/host.exe DESTINATION ${WORK}/installed/bin)
run(${RUN} ${WORK}/installed/bin/host.exe)
