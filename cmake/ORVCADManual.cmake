# Manual pages, which the command itself writes; installed with the command.

set(ORVCAD_MANUAL_DIR ${PROJECT_BINARY_DIR}/manual)
add_custom_command(
    OUTPUT ${ORVCAD_MANUAL_DIR}/orvcad.1
    COMMAND orvcad --quiet manual ${ORVCAD_MANUAL_DIR}
    DEPENDS orvcad
    COMMENT "Writing the manual pages"
    VERBATIM)
add_custom_target(ORVCADManual ALL DEPENDS ${ORVCAD_MANUAL_DIR}/orvcad.1)

install(DIRECTORY ${ORVCAD_MANUAL_DIR}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 OPTIONAL
    FILES_MATCHING PATTERN "*.1")

