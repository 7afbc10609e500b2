# tempodial_manual(): the manual pages and the completions of shells, made of what the program tells of itself. Without
# Python there are no pages.

set(TEMPODIAL_BASH_DIR "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" CACHE STRING "Where bash looks")
set(TEMPODIAL_ZSH_DIR "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING "Where zsh looks")
set(TEMPODIAL_FISH_DIR "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" CACHE STRING "Where fish looks")
mark_as_advanced(TEMPODIAL_BASH_DIR TEMPODIAL_ZSH_DIR TEMPODIAL_FISH_DIR)

# tempodial_completion(SHELL NAME FOLDER): the completion of a shell, installed under that name.
function(tempodial_completion shell name folder)
    set(script "${CMAKE_BINARY_DIR}/completions/${name}")
    add_custom_command(OUTPUT "${script}"
        COMMAND tempodial completion ${shell} > "${script}"
        DEPENDS tempodial COMMENT "Writing the completion of ${shell}" VERBATIM)
    set_property(GLOBAL APPEND PROPERTY TEMPODIAL_MANUAL_FILES "${script}")
    install(FILES "${script}" DESTINATION "${folder}" OPTIONAL)
endfunction()

function(tempodial_manual)
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/completions")
    tempodial_completion(bash tempodial "${TEMPODIAL_BASH_DIR}")
    tempodial_completion(zsh _tempodial "${TEMPODIAL_ZSH_DIR}")
    tempodial_completion(fish tempodial.fish "${TEMPODIAL_FISH_DIR}")
    # The system's own Python comes first, as in the tests.
    find_program(Python3_EXECUTABLE python3 PATHS /usr/bin NO_DEFAULT_PATH)
    find_package(Python3 COMPONENTS Interpreter)
    if(Python3_FOUND)
        set(outline "${CMAKE_BINARY_DIR}/outline.json")
        set(pages "${CMAKE_BINARY_DIR}/man")
        file(GLOB written CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/man/*")
        add_custom_command(OUTPUT "${outline}"
            COMMAND tempodial completion outline > "${outline}"
            COMMAND "${CMAKE_COMMAND}" -E rm -rf "${pages}"
            COMMAND "${Python3_EXECUTABLE}" -B "${PROJECT_SOURCE_DIR}/tools/make-man" "${outline}" "${pages}"
            DEPENDS tempodial "${PROJECT_SOURCE_DIR}/tools/make-man" "${PROJECT_SOURCE_DIR}/debian/changelog" ${written}
            COMMENT "Writing the manual pages" VERBATIM)
        set_property(GLOBAL APPEND PROPERTY TEMPODIAL_MANUAL_FILES "${outline}")
        install(DIRECTORY "${pages}/" DESTINATION "${CMAKE_INSTALL_MANDIR}" OPTIONAL)
    endif()
    get_property(files GLOBAL PROPERTY TEMPODIAL_MANUAL_FILES)
    add_custom_target(manual ALL DEPENDS ${files})
endfunction()
