# Test programs, one per folder below tests/, and the check that no test file is left out of them.

include(GoogleTest)

# The bodies of tests run once and take a compiler longest, the more so with sanitizers: half the time without -O.
set(ORVCAD_TEST_OPTIONS -O0)

orvcad_add_precompiled(ORVCADTestPrecompiled
    LIBRARIES Qt5::Core GTest::gmock GTest::gtest
    OPTIONS ${ORVCAD_TEST_OPTIONS}
    HEADERS gmock/gmock.h gtest/gtest.h QDir QFile QHash QJsonArray QJsonDocument QJsonObject QList QMap QSet QString
        QStringList QTemporaryDir QUuid algorithm array cmath functional limits map memory optional random string utility
        vector)

# What every target that only tests use has in common.
function(orvcad_configure_test_target target)
    orvcad_configure_target(${target})
    target_compile_options(${target} PRIVATE ${ORVCAD_TEST_OPTIONS})
    orvcad_use_precompiled(${target} ORVCADTestPrecompiled)
endfunction()

# orvcad_add_shards(<name> <program> <directory>)
# The program in ORVCAD_TEST_SHARDS runs, each of which takes its share of the tests.
function(orvcad_add_shards name program directory)
    foreach(shard RANGE 1 ${ORVCAD_TEST_SHARDS})
        math(EXPR index "${shard} - 1")
        add_test(NAME ${name}.${shard} COMMAND ${program} --gtest_brief=1 WORKING_DIRECTORY ${directory})
        set_tests_properties(${name}.${shard} PROPERTIES
            LABELS ${name}
            TIMEOUT 1800
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${ORVCAD_TEST_SHARDS};GTEST_SHARD_INDEX=${index}")
    endforeach()
endfunction()

# orvcad_add_tests(<name> SOURCES <file>... [LIBRARIES <target>...] [EMBEDDED])
# Makes the program <name>Tests; its tests carry the label <name>. EMBEDDED: the sources use the embedded host, so the
# program is left out where a vendor's platform takes its place.
function(orvcad_add_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "EMBEDDED" "" "SOURCES;LIBRARIES")
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
        message(FATAL_ERROR "orvcad_add_tests(${name}): SOURCES missing, or not understood: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    list(TRANSFORM arg_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
    set_property(GLOBAL APPEND PROPERTY ORVCAD_TEST_SOURCES ${sources})
    if(arg_EMBEDDED AND ORVCAD_PLATFORM_TARGET)
        return()
    endif()

    set(program ${name}Tests)
    add_executable(${program} ${sources})
    orvcad_configure_test_target(${program})
    target_link_libraries(${program} PRIVATE ORVCADTestSupport ${arg_LIBRARIES})

    set(work ${PROJECT_BINARY_DIR}/tests/work/${name})
    file(MAKE_DIRECTORY ${work})
    if(ORVCAD_TEST_SHARDS)
        orvcad_add_shards(${name} ${program} ${work})
        return()
    endif()
    gtest_discover_tests(${program}
        NO_PRETTY_VALUES
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        WORKING_DIRECTORY ${work}
        PROPERTIES LABELS ${name} TIMEOUT 300)
endfunction()

# A test file that stands in the tree and is in no program is an error with ORVCAD_WERROR, else a warning.
function(orvcad_check_all_tests_are_built)
    get_property(built GLOBAL PROPERTY ORVCAD_TEST_SOURCES)
    file(GLOB_RECURSE forgotten CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*Test.cpp)
    if(built)
        list(REMOVE_ITEM forgotten ${built})
    endif()
    if(forgotten)
        list(JOIN forgotten "\n  " lines)
        set(severity WARNING)
        if(ORVCAD_WERROR)
            set(severity FATAL_ERROR)
        endif()
        message(${severity} "Tests that stand in the tree and are in no orvcad_add_tests:\n  ${lines}")
    endif()
endfunction()
