# Manual pages, which the command itself writes, and the completion of shells; installed with the command.

set(ORVCAD_MANUAL_DIR ${PROJECT_BINARY_DIR}/manual)
add_custom_command(
    OUTPUT ${ORVCAD_MANUAL_DIR}/orvcad.1
    COMMAND orvcad --quiet manual ${ORVCAD_MANUAL_DIR}
    DEPENDS orvcad
    COMMENT "Writing the manual pages"
    VERBATIM)
add_custom_target(ORVCADManual ALL DEPENDS ${ORVCAD_MANUAL_DIR}/orvcad.1)

install(DIRECTORY ${ORVCAD_MANUAL_DIR}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Command
    FILES_MATCHING PATTERN "*.1")

set(ORVCAD_COMPLETION_DIR ${PROJECT_SOURCE_DIR}/src/cli/completion)
install(FILES ${ORVCAD_COMPLETION_DIR}/orvcad.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME orvcad COMPONENT Command)
install(FILES ${ORVCAD_COMPLETION_DIR}/_orvcad
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT Command)
install(FILES ${ORVCAD_COMPLETION_DIR}/orvcad.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT Command)
