# Manual pages, which the command itself writes, and the completion of shells; installed with the command.

set(ORVCAD_MANUAL_DIR ${PROJECT_BINARY_DIR}/man) # laid out as it is installed

# orvcad_write_manual(<section> <language>): the pages in a language, whatever that of the machine is.
function(orvcad_write_manual section language)
    set(directory ${ORVCAD_MANUAL_DIR}/${section})
    add_custom_command(
        OUTPUT ${directory}/orvcad.1
        COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 LANGUAGE=${language}
            $<TARGET_FILE:orvcad> --quiet manual ${directory}
        DEPENDS orvcad
        COMMENT "Writing the manual pages into ${section}"
        VERBATIM)
endfunction()

orvcad_write_manual(man1 "") # the language of the sources
orvcad_write_manual(zh_CN/man1 zh_CN)
add_custom_target(ORVCADManual ALL
    DEPENDS ${ORVCAD_MANUAL_DIR}/man1/orvcad.1 ${ORVCAD_MANUAL_DIR}/zh_CN/man1/orvcad.1)

install(DIRECTORY ${ORVCAD_MANUAL_DIR}/ DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT Command
    FILES_MATCHING PATTERN "*.1")

set(ORVCAD_COMPLETION_DIR ${PROJECT_SOURCE_DIR}/src/cli/completion)
install(FILES ${ORVCAD_COMPLETION_DIR}/orvcad.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME orvcad COMPONENT Command)
install(FILES ${ORVCAD_COMPLETION_DIR}/_orvcad
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT Command)
install(FILES ${ORVCAD_COMPLETION_DIR}/orvcad.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT Command)
