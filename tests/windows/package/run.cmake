# run(COMMAND ARGUMENT...): ends the script with the command's output if it fails.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nended with ${status}\n${output}")
    endif()
endfunction()
