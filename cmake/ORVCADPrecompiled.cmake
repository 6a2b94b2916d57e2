# Headers of Qt, the standard library and the test framework, compiled once: reading them is most of what compiling a
# file of this project takes. Nothing depends on it: with ORVCAD_PRECOMPILE off the same sources build, only slower, and
# ./dev lint reads them so.

option(ORVCAD_PRECOMPILE "Precompile the headers of Qt, the standard library and the test framework"
    ${PROJECT_IS_TOP_LEVEL})

# orvcad_add_precompiled(<name> HEADERS <header>... [LIBRARIES <target>...] [OPTIONS <flag>...])
# Headers that targets with the same flags use by orvcad_use_precompiled(<target> <name>).
function(orvcad_add_precompiled name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES;OPTIONS")
    if(NOT ORVCAD_PRECOMPILE)
        return()
    endif()
    set(source ${PROJECT_BINARY_DIR}/precompiled/${name}.cpp)
    file(GENERATE OUTPUT ${source} CONTENT "// A target has a source.\n")
    add_library(${name} OBJECT ${source})
    orvcad_configure_target(${name})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    target_compile_options(${name} PRIVATE ${arg_OPTIONS})
    list(TRANSFORM arg_HEADERS REPLACE "^(.+)$" "<\\1>")
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
    orvcad_let_cache_know(${name})
endfunction()

function(orvcad_use_precompiled target name)
    if(ORVCAD_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${name})
        orvcad_let_cache_know(${target})
    endif()
endfunction()

# The compiler cache needs to see which precompiled header g++ has read.
function(orvcad_let_cache_know target)
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
