# brisko_ship_resources(<target> FOLDERS <folder>... MANIFEST <header>)
#
# Brisko's read-only files (the report templates, the manual) live in folders
# of the source tree. Each folder that exists is copied beside <target> at
# build time, so that a build runs as it is, and installed under
# share/brisko, where an installed Brisko looks for it. Every file shipped is
# listed in the generated <header>, so that the program can name the ones it
# misses at start-up. A folder that appears later is picked up by itself: the
# file lists are checked again on every build.
function(brisko_ship_resources target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "MANIFEST" "FOLDERS")
    set(copies "")
    set(manifest_entries "")
    foreach(folder IN LISTS arg_FOLDERS)
        file(GLOB_RECURSE files CONFIGURE_DEPENDS LIST_DIRECTORIES false
            RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/${folder}/*)
        list(SORT files)
        foreach(file IN LISTS files)
            set(copy ${CMAKE_CURRENT_BINARY_DIR}/${file})
            add_custom_command(OUTPUT ${copy}
                COMMAND ${CMAKE_COMMAND} -E copy_if_different ${PROJECT_SOURCE_DIR}/${file} ${copy}
                DEPENDS ${PROJECT_SOURCE_DIR}/${file}
                COMMENT "Placing ${file} beside the program"
                VERBATIM)
            list(APPEND copies ${copy})
            string(APPEND manifest_entries "    QStringLiteral(\"${file}\"),\n")
        endforeach()
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/
            DESTINATION ${CMAKE_INSTALL_DATADIR}/brisko/${folder}
            OPTIONAL)
    endforeach()

    add_custom_target(${target}_resources DEPENDS ${copies})
    add_dependencies(${target} ${target}_resources)

    set(BRISKO_SHIPPED_FILES "${manifest_entries}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/shippedfiles.h.in ${arg_MANIFEST} @ONLY)
endfunction()
