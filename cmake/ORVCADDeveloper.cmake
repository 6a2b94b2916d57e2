# What concerns building this project itself and is never exported: warnings, sanitizers, the compiler cache and
# where the build tree keeps its programs.

add_library(ORVCADDeveloper INTERFACE)

# g++ leaves changes of sign out of -Wconversion in C++, clang does not: both get the same set.
target_compile_options(ORVCADDeveloper INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
if(ORVCAD_WERROR)
    target_compile_options(ORVCADDeveloper INTERFACE -Werror)
endif()

if(ORVCAD_SANITIZE)
    set(sanitizers ${ORVCAD_SANITIZE})
    if(sanitizers MATCHES "^(ON|TRUE|YES|1)$")
        set(sanitizers address,undefined)
    endif()
    target_compile_options(ORVCADDeveloper INTERFACE
        -fsanitize=${sanitizers} -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
    # The instrumented code of std::function makes g++ see uninitialised values that are not there.
    target_compile_options(ORVCADDeveloper INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(ORVCADDeveloper INTERFACE -fsanitize=${sanitizers})
endif()

if(ORVCAD_FUZZ)
    # Counts what an input reaches; the programs bring the fuzzer itself.
    target_compile_options(ORVCADDeveloper INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(ORVCADDeveloper INTERFACE -fsanitize=fuzzer-no-link)
endif()

# orvcad_count_coverage(<target>): with ORVCAD_COVERAGE, its programs count which of its lines and branches they run, in
# .gcda files beside the objects. Commands are run by several tests at a time, and each adds its counts to the same files.
function(orvcad_count_coverage target)
    if(ORVCAD_COVERAGE)
        target_compile_options(${target} PRIVATE -O0 --coverage -fprofile-abs-path)
        target_link_options(${target} PUBLIC $<BUILD_INTERFACE:--coverage>) # also of programs with the objects of cli
    endif()
endfunction()

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

    find_program(ORVCAD_CCACHE ccache)
    mark_as_advanced(ORVCAD_CCACHE)
    if(ORVCAD_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER
            ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ORVCAD_CCACHE})
    endif()
endif()
