# Compiles and runs a program with what pkg-config tells of a copy of the installation, which stands in another place than
# where it was installed.
# Arguments: SOURCE (of the program), LIBDIR, PREFIX (of the installation), WORK (folder to work in), COMPILER.

cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/RunCommand.cmake)

file(REMOVE_RECURSE ${WORK})
file(COPY ${PREFIX}/ DESTINATION ${WORK}/moved)
set(ENV{PKG_CONFIG_PATH} ${WORK}/moved/${LIBDIR}/pkgconfig)
execute_process(COMMAND pkg-config --cflags --libs orvcadmodeldata
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
if("${flags}" MATCHES "${PREFIX}/")
    message(FATAL_ERROR "The old place is in ${flags}")
endif()
run(${COMPILER} -std=c++17 ${SOURCE} -o ${WORK}/program ${flags} -Wl,-rpath,${WORK}/moved/${LIBDIR})
run(${WORK}/program)
