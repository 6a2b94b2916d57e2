# Builds a project against the installation and runs its tests.
# Arguments: SOURCE (the project), PREFIX (of the installation), WORK (folder to work in), GENERATOR, COMPILER, LAUNCHER (of
# the compiler; may be empty).

cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/RunCommand.cmake)

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK} -G ${GENERATOR}
    -D CMAKE_PREFIX_PATH=${PREFIX}
    -D CMAKE_BUILD_TYPE=Debug
    -D CMAKE_CXX_FLAGS_DEBUG=
    -D CMAKE_CXX_COMPILER=${COMPILER}
    "-D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}")
run(${CMAKE_COMMAND} --build ${WORK})
run(ctest --test-dir ${WORK} --output-on-failure)
