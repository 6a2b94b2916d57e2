# What `cmake --install` lays down, in three components:
#   Runtime      the libraries
#   Development  include/ORVCADModelData, the names that programs are linked by, the package ORVCADModelData, the files of
#                pkg-config, and the contract of hosts as sources
#   Command      bin/orvcad, its manual pages and completion, and share/orvcad/schemas

include(CMakePackageConfigHelpers)

set(ORVCAD_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/ORVCADModelData)
set(ORVCAD_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ORVCADModelData)
set(ORVCAD_CONTRACT_DIR ${CMAKE_INSTALL_DATADIR}/ORVCADModelData/host_contract)

set(ORVCAD_LIBRARIES ORVCADModelData)
if(NOT ORVCAD_PLATFORM_TARGET)
    list(APPEND ORVCAD_LIBRARIES ORVCADPlatform)
endif()

# orvcad_install_development(<destination> <file>...)
function(orvcad_install_development destination)
    install(FILES ${ARGN} DESTINATION ${destination} COMPONENT Development)
endfunction()

install(TARGETS ${ORVCAD_LIBRARIES} EXPORT ORVCADModelDataTargets
    RUNTIME COMPONENT Runtime
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development)
if(TARGET orvcad)
    install(TARGETS orvcad RUNTIME COMPONENT Command)
endif()

# Headers keep their paths below src.
foreach(library IN LISTS ORVCAD_LIBRARIES)
    get_target_property(headers ${library} ORVCAD_PUBLIC_HEADERS)
    foreach(header IN LISTS headers)
        string(APPEND doxygen_input "INPUT += \"${header}\"\n")
        file(RELATIVE_PATH path ${PROJECT_SOURCE_DIR}/src ${header})
        cmake_path(GET path PARENT_PATH folder)
        orvcad_install_development(${ORVCAD_HEADER_DIR}/${folder} ${header})
    endforeach()
    orvcad_install_development(${ORVCAD_HEADER_DIR} ${PROJECT_BINARY_DIR}/include/${library}Export.h)
endforeach()
file(WRITE ${PROJECT_BINARY_DIR}/public-headers.doxyfile "${doxygen_input}") # what docs/Doxyfile tells of

install(DIRECTORY ${PROJECT_SOURCE_DIR}/schemas/ DESTINATION ${CMAKE_INSTALL_DATADIR}/orvcad/schemas COMPONENT Command
    FILES_MATCHING PATTERN "*.schema.json")

install(EXPORT ORVCADModelDataTargets NAMESPACE ORVCADModelData::
    DESTINATION ${ORVCAD_PACKAGE_DIR} COMPONENT Development)
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/ORVCADModelDataConfig.cmake.in
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfig.cmake
    INSTALL_DESTINATION ${ORVCAD_PACKAGE_DIR}
    PATH_VARS ORVCAD_CONTRACT_DIR)
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
orvcad_install_development(${ORVCAD_PACKAGE_DIR}
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfig.cmake
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfigVersion.cmake)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/tests/host_contract/
    DESTINATION ${ORVCAD_CONTRACT_DIR} COMPONENT Development
    FILES_MATCHING PATTERN "*.h" PATTERN "*.cpp" PATTERN "*Test.cpp" EXCLUDE)

# orvcad_install_pkg_config(<library> <description> <packages that its headers need>)
# The file finds the rest of the installation from where it stands itself, so the whole may be moved.
function(orvcad_install_pkg_config library description requires)
    set(directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    if(IS_ABSOLUTE ${directory})
        set(prefix ${CMAKE_INSTALL_PREFIX})
    else()
        file(RELATIVE_PATH up /prefix/${directory} /prefix)
        string(REGEX REPLACE "/$" "" up ${up})
        set(prefix "\${pcfiledir}/${up}")
    endif()
    set(libdir "\${prefix}")
    set(includedir "\${prefix}")
    cmake_path(APPEND libdir ${CMAKE_INSTALL_LIBDIR}) # an absolute folder takes the place of the whole
    cmake_path(APPEND includedir ${ORVCAD_HEADER_DIR})
    get_target_property(name ${library} OUTPUT_NAME)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc @ONLY)
    orvcad_install_development(${directory} ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc)
endfunction()

# What a vendor's platform needs is not known here.
if(NOT ORVCAD_PLATFORM_TARGET)
    orvcad_install_pkg_config(ORVCADPlatform
        "Geometry kernel, abstract host and embedded host of ORVCADModelData" "Qt5Core >= 5.15")
    orvcad_install_pkg_config(ORVCADModelData
        "${PROJECT_DESCRIPTION}" "orvcadplatform = ${PROJECT_VERSION}, Qt5Core >= 5.15, Qt5Xml >= 5.15")
endif()
