# Arguments: BUILD (finished build tree), CONSUMER (its source), WORK (folder to work in), GENERATOR.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/build -G ${GENERATOR} -D CMAKE_PREFIX_PATH=${WORK}/prefix)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/consumer)
