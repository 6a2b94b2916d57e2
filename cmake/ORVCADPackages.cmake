# The Debian packages, made by CPack from the components of the installation:
#   liborvcadmodeldata1     Runtime
#   liborvcadmodeldata-dev  Development
#   orvcad                  Command

set(ORVCAD_RUNTIME_PACKAGE liborvcadmodeldata${PROJECT_VERSION_MAJOR})
set(ORVCAD_DEVELOPMENT_PACKAGE liborvcadmodeldata-dev)
set(ORVCAD_COMMAND_PACKAGE orvcad)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvcadmodeldata)
set(CPACK_PACKAGE_VENDOR ORVCADModelData)
set(CPACK_PACKAGE_CONTACT "ORVCADModelData maintainers <maintainers@orvcadmodeldata.invalid>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Runtime Development Command)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib) # of one library for the other

# The first line of each is the description of the project.
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The shared libraries, on Qt 5: what programs need to run.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, the CMake package, the files of pkg-config, and the contract that
hosts of one's own are held to.")
set(CPACK_COMPONENT_COMMAND_DESCRIPTION "The command line: moves floors, slabs, beams, walls, openings and drawings
between buildings and the documents of recognition.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${ORVCAD_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${ORVCAD_DEVELOPMENT_PACKAGE})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${ORVCAD_RUNTIME_PACKAGE} (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "cmake, libgtest-dev, pkg-config")
set(CPACK_DEBIAN_COMMAND_PACKAGE_NAME ${ORVCAD_COMMAND_PACKAGE})
set(CPACK_DEBIAN_COMMAND_PACKAGE_SECTION science)
set(CPACK_DEBIAN_COMMAND_PACKAGE_RECOMMENDS librsvg2-bin) # paints the pictures of orvcad draw --format png
set(CPACK_DEBIAN_COMMAND_PACKAGE_DEPENDS "${ORVCAD_RUNTIME_PACKAGE} (= ${PROJECT_VERSION})")

# What other packages depend on when they are linked with the libraries.
set(shlibs "")
foreach(library IN LISTS ORVCAD_LIBRARIES)
    get_target_property(name ${library} OUTPUT_NAME)
    string(APPEND shlibs
        "lib${name} ${PROJECT_VERSION_MAJOR} ${ORVCAD_RUNTIME_PACKAGE} (>= ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})\n")
endforeach()
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/debian/shlibs CONTENT "${shlibs}" @ONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/shlibs)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} name)
    install(FILES ${PROJECT_SOURCE_DIR}/cmake/debian/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${ORVCAD_${name}_PACKAGE} COMPONENT ${component})
endforeach()

include(CPack)
