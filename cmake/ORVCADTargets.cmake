# Functions that make this project's targets, so that each of them is stated once.

# What every target of this project has in common.
function(orvcad_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:ORVCADDeveloper>)
endfunction()

# orvcad_add_library(<target> <name in the package>)
# A shared library without sources; the folders add theirs with target_sources.
function(orvcad_add_library target export_name)
    add_library(${target} SHARED)
    add_library(ORVCADModelData::${export_name} ALIAS ${target})
    orvcad_configure_target(${target})
    orvcad_count_coverage(${target})
    generate_export_header(${target} EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/${target}Export.h)
    target_sources(${target} PRIVATE ${PROJECT_BINARY_DIR}/include/${target}Export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ORVCADModelData>)
    string(TOLOWER ${target} file_name) # liborvcadmodeldata.so.1: what the system's own packages call libraries
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${file_name}
        EXPORT_NAME ${export_name}
        LINKER_LANGUAGE CXX
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN")
endfunction()

# orvcad_public_headers(<library> <header>...)
# Headers of this folder that are installed with a library: what programs include, and what those headers include.
function(orvcad_public_headers library)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE headers)
    set_property(TARGET ${library} APPEND PROPERTY ORVCAD_PUBLIC_HEADERS ${headers})
endfunction()

# orvcad_add_folders(<folder>...): those that have something to build.
macro(orvcad_add_folders)
    foreach(folder IN ITEMS ${ARGN})
        if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt)
            add_subdirectory(${folder})
        endif()
    endforeach()
endmacro()
