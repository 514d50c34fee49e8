# Installs the module into a fresh folder, builds the host program against the package there, and runs it beside the
# installed libraries.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -G Ninja -S ${HOST} -B ${WORK}/host -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
    -DCMAKE_BUILD_TYPE=Release -DEXAMPLE=${EXAMPLE}
    -Dinstrument_ui_DIR=${WORK}/installed/lib/cmake/instrument_ui)
run(${CMAKE_COMMAND} --build ${WORK}/host)
file(COPY ${WORK}/host/host.exe DESTINATION ${WORK}/installed/bin)
run(${RUN} ${WORK}/installed/bin/host.exe)
