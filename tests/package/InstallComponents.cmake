# Installs each component into a folder of its own, looks at what it laid down, then all of them into PREFIX.
# Arguments: BUILD (finished build tree), VERSION, LIBDIR, WORK (folder to work in), PREFIX.

cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/RunCommand.cmake)

# The files of a component, in order.
function(install_component component out)
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/${component} --component ${component})
    file(GLOB_RECURSE files RELATIVE ${WORK}/${component} ${WORK}/${component}/*)
    list(SORT files)
    set(${out} ${files} PARENT_SCOPE)
endfunction()

function(expect_files component)
    install_component(${component} files)
    if(NOT "${files}" STREQUAL "${ARGN}")
        message(FATAL_ERROR "${component} holds\n  ${files}\nand not\n  ${ARGN}")
    endif()
endfunction()

function(expect_matches text pattern)
    if(NOT text MATCHES "${pattern}")
        message(FATAL_ERROR "${pattern} is not in\n${text}")
    endif()
endfunction()

# That the list of a component's files has some.
function(expect_held component list)
    foreach(wanted IN LISTS ARGN)
        if(NOT wanted IN_LIST ${list})
            message(FATAL_ERROR "${component} lacks ${wanted}")
        endif()
    endforeach()
endfunction()

function(expect_soname library)
    execute_process(COMMAND readelf -d ${WORK}/Runtime/${LIBDIR}/${library}
        OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
    expect_matches("${dynamic}" "SONAME[^\n]*\\[${library}\\]")
endfunction()

file(REMOVE_RECURSE ${WORK} ${PREFIX})
string(REGEX MATCH "^[0-9]+" major ${VERSION})

# The command, a page for it and each of its groups in two languages, the completion of three shells, and the schemas.
install_component(Command files)
foreach(file IN LISTS files)
    expect_matches(${file} "^bin/orvcad$|^share/(man/(zh_CN/)?man1/orvcad(-[a-z]+)?\\.1|orvcad/schemas/[a-z0-9-]+\\.schema\\.json)$|\
^share/(bash-completion/completions/orvcad|zsh/site-functions/_orvcad|fish/vendor_completions\\.d/orvcad\\.fish)$")
endforeach()
expect_held(Command files
    bin/orvcad
    share/bash-completion/completions/orvcad
    share/fish/vendor_completions.d/orvcad.fish
    share/man/man1/orvcad.1
    share/man/man1/orvcad-check.1
    share/orvcad/schemas/slab-model.schema.json
    share/zsh/site-functions/_orvcad)
foreach(page IN LISTS files)
    if(page MATCHES "^share/man/man1/")
        string(REPLACE "man/man1" "man/zh_CN/man1" translated ${page})
        expect_held(Command files ${translated})
    endif()
endforeach()
expect_files(Runtime
    ${LIBDIR}/liborvcadmodeldata.so.${major}
    ${LIBDIR}/liborvcadmodeldata.so.${VERSION}
    ${LIBDIR}/liborvcadplatform.so.${major}
    ${LIBDIR}/liborvcadplatform.so.${VERSION})
expect_soname(liborvcadmodeldata.so.${major})
expect_soname(liborvcadplatform.so.${major})

install_component(Development files)
foreach(file IN LISTS files)
    expect_matches(${file}
        "^(include|share)/ORVCADModelData/|^${LIBDIR}/(cmake/ORVCADModelData|pkgconfig)/|^${LIBDIR}/lib[a-z]+\\.so$")
endforeach()
expect_held(Development files
    include/ORVCADModelData/ORVCADModelDataExport.h
    include/ORVCADModelData/ORVCADPlatformExport.h
    include/ORVCADModelData/encoding/ObjectMembers.h
    include/ORVCADModelData/platform/embedded/HBXProject.h
    include/ORVCADModelData/platform/host/IHBXService.h
    share/ORVCADModelData/host_contract/HostContract.h
    ${LIBDIR}/liborvcadmodeldata.so
    ${LIBDIR}/pkgconfig/orvcadplatform.pc)
foreach(unwanted IN ITEMS
        include/ORVCADModelData/cli/Command.h
        include/ORVCADModelData/platform/embedded/HBXDatabaseFile.h
        include/ORVCADModelData/ModelSerialization/SlabRows.h
        share/ORVCADModelData/host_contract/EmbeddedHostContractTest.cpp)
    if(unwanted IN_LIST files)
        message(FATAL_ERROR "Development holds ${unwanted}, which is no one else's affair")
    endif()
endforeach()

# Nothing of this machine is written down in what is installed as text.
foreach(file IN LISTS files)
    if(file MATCHES "\\.(cmake|pc)$")
        file(READ ${WORK}/Development/${file} text)
        foreach(path IN ITEMS ${BUILD} ${WORK})
            string(FIND "${text}" ${path} found)
            if(NOT found EQUAL -1)
                message(FATAL_ERROR "${file} names ${path}")
            endif()
        endforeach()
    endif()
endforeach()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX})
