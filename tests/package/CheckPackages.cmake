# Unpacks the Debian packages into a root of their own with dpkg, uses them from there, and takes them away again.
# Arguments: PACKAGES (folder of the packages), SOURCES (of the project), WORK (folder to work in).

cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/RunCommand.cmake)

set(root ${WORK}/root)
set(packages liborvcadmodeldata1 liborvcadmodeldata-dev orvcad)

# dpkg_on_root(<argument>...): dependencies are looked at below, they are not in this root.
function(dpkg_on_root)
    execute_process(COMMAND id -u OUTPUT_VARIABLE user OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(as_root "")
    if(NOT user EQUAL 0)
        set(as_root fakeroot)
    endif()
    run(${as_root} dpkg --root=${root} --log=${WORK}/dpkg.log --force-depends --force-script-chrootless ${ARGN})
endfunction()

function(expect_field package field pattern)
    file(GLOB file ${PACKAGES}/${package}_*.deb)
    execute_process(COMMAND dpkg-deb --field ${file} ${field}
        OUTPUT_VARIABLE value OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT value MATCHES "${pattern}")
        message(FATAL_ERROR "${field} of ${package} is \"${value}\", without ${pattern}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
foreach(folder IN ITEMS info updates)
    file(MAKE_DIRECTORY ${root}/var/lib/dpkg/${folder})
endforeach()
file(TOUCH ${root}/var/lib/dpkg/status ${root}/var/lib/dpkg/available)

# The scripts of the packages bring the linker's cache up to date: that of this machine is left alone.
file(WRITE ${WORK}/bin/ldconfig "#!/bin/sh\n")
file(CHMOD ${WORK}/bin/ldconfig PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(ENV{PATH} ${WORK}/bin:$ENV{PATH})

expect_field(liborvcadmodeldata1 Depends "libqt5xml5.*")
expect_field(liborvcadmodeldata1 Depends "libgeos-c1.*")
expect_field(liborvcadmodeldata1 Depends "libsqlite3-0.*")
expect_field(liborvcadmodeldata-dev Depends "liborvcadmodeldata1 \\(= [0-9.]+\\), qtbase5-dev")
expect_field(orvcad Depends "liborvcadmodeldata1 \\(= [0-9.]+\\)")
expect_field(orvcad Maintainer "@orvcadmodeldata\\.invalid>$")

file(GLOB files ${PACKAGES}/*.deb)
dpkg_on_root(--install ${files})

# The command, from there and with the libraries from there.
file(GLOB library ${root}/usr/lib/*/liborvcadmodeldata.so.1)
if(NOT library)
    message(FATAL_ERROR "No library in ${root}/usr/lib")
endif()
cmake_path(GET library PARENT_PATH libraries)
set(ENV{LD_LIBRARY_PATH} ${libraries})
run(${root}/usr/bin/orvcad project import ${SOURCES}/tests/data/buildings/masonry-block.json -o ${WORK}/block.hbxdb)
run(${root}/usr/bin/orvcad project info ${WORK}/block.hbxdb)

# A program against the headers and the CMake package from there.
run(${CMAKE_COMMAND}
    -D SOURCE=${SOURCES}/examples/floors_reader
    -D PREFIX=${root}/usr
    -D WORK=${WORK}/floors_reader
    -D GENERATOR=Ninja
    -D COMPILER=c++
    -P ${CMAKE_CURRENT_LIST_DIR}/UseInstalledPackage.cmake)

dpkg_on_root(--purge ${packages})
file(GLOB_RECURSE left LIST_DIRECTORIES true RELATIVE ${root} ${root}/*)
list(FILTER left EXCLUDE REGEX "^var")
if(left)
    message(FATAL_ERROR "The packages have left behind: ${left}")
endif()
message(STATUS "${packages}: installed, used and removed without a trace")
