# What `cmake --install` lays down: bin, lib, include/ORVCADModelData, share/orvcad/schemas and the package ORVCADModelData.

include(CMakePackageConfigHelpers)

set(ORVCAD_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/ORVCADModelData)
set(ORVCAD_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ORVCADModelData)

set(ORVCAD_LIBRARIES ORVCADModelData)
set(ORVCAD_UNINSTALLED_FOLDERS PATTERN "cli" EXCLUDE PATTERN "embedded" EXCLUDE)
if(ORVCAD_PLATFORM_TARGET)
    list(APPEND ORVCAD_UNINSTALLED_FOLDERS PATTERN "platform" EXCLUDE)
else()
    list(APPEND ORVCAD_LIBRARIES ORVCADPlatform)
endif()

install(TARGETS ${ORVCAD_LIBRARIES} EXPORT ORVCADModelDataTargets)
if(TARGET orvcad)
    install(TARGETS orvcad)
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/ DESTINATION ${ORVCAD_HEADER_DIR}
    FILES_MATCHING PATTERN "*.h" ${ORVCAD_UNINSTALLED_FOLDERS})
if(NOT ORVCAD_PLATFORM_TARGET)
    # What a program needs to open the embedded host; the rest of that folder is its own affair.
    install(FILES
        ${PROJECT_SOURCE_DIR}/src/platform/embedded/HBXJournal.h
        ${PROJECT_SOURCE_DIR}/src/platform/embedded/HBXProject.h
        DESTINATION ${ORVCAD_HEADER_DIR}/platform/embedded)
endif()
foreach(library IN LISTS ORVCAD_LIBRARIES)
    install(FILES ${PROJECT_BINARY_DIR}/include/${library}Export.h DESTINATION ${ORVCAD_HEADER_DIR})
endforeach()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/schemas/ DESTINATION ${CMAKE_INSTALL_DATADIR}/orvcad/schemas
    FILES_MATCHING PATTERN "*.schema.json")

install(EXPORT ORVCADModelDataTargets NAMESPACE ORVCADModelData:: DESTINATION ${ORVCAD_PACKAGE_DIR})
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/ORVCADModelDataConfig.cmake.in
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfig.cmake
    INSTALL_DESTINATION ${ORVCAD_PACKAGE_DIR})
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfig.cmake
    ${PROJECT_BINARY_DIR}/cmake/ORVCADModelDataConfigVersion.cmake
    DESTINATION ${ORVCAD_PACKAGE_DIR})
