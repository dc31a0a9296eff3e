# Manual pages and lists of changes, packed as Debian wants them: no name or time inside, so that equal texts give equal
# bytes.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(ZERNA_GZIP gzip REQUIRED)

set(packed)
# packed_file(zerna.1.gz FROM text DEPENDS …): the text, or the output of the command, packed.
function(packed_file name)
    cmake_parse_arguments(PACKED "" "FROM" "COMMAND;DEPENDS" ${ARGN})
    if(PACKED_COMMAND)
        set(make COMMAND ${PACKED_COMMAND} > ${name}.txt COMMAND ${ZERNA_GZIP} -9nc ${name}.txt > ${name})
    else()
        set(make COMMAND ${ZERNA_GZIP} -9nc ${PACKED_FROM} > ${name})
    endif()
    add_custom_command(OUTPUT ${name} ${make} DEPENDS ${PACKED_FROM} ${PACKED_DEPENDS} VERBATIM)
    set(packed ${packed} ${CMAKE_CURRENT_BINARY_DIR}/${name} PARENT_SCOPE)
endfunction()

configure_file(zerna-cli.1.in zerna-cli.1.in @ONLY)
packed_file(zerna-cli.1.gz
    COMMAND ${CMAKE_COMMAND} -E env PYTHONIOENCODING=utf-8 ${Python3_EXECUTABLE}
        ${CMAKE_CURRENT_SOURCE_DIR}/handbuchseite.py $<TARGET_FILE:zerna-cli>
        ${CMAKE_CURRENT_BINARY_DIR}/zerna-cli.1.in
    DEPENDS zerna-cli handbuchseite.py ${CMAKE_CURRENT_BINARY_DIR}/zerna-cli.1.in)
set(pages zerna-cli)
if(TARGET zerna)
    configure_file(zerna.1.in zerna.1 @ONLY)
    packed_file(zerna.1.gz FROM ${CMAKE_CURRENT_BINARY_DIR}/zerna.1)
    list(APPEND pages zerna)
endif()
# The pages are German; those who have set another language find them too.
foreach(page ${pages})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${page}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/de/man1)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/man1)
    file(CREATE_LINK ../de/man1/${page}.1.gz ${CMAKE_CURRENT_BINARY_DIR}/man1/${page}.1.gz SYMBOLIC)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/man1/${page}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

string(TIMESTAMP ZERNA_RELEASE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(changelog.in changelog @ONLY)
packed_file(changelog.gz FROM ${CMAKE_CURRENT_BINARY_DIR}/changelog)
packed_file(NEUES.md.gz FROM ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz ${CMAKE_CURRENT_BINARY_DIR}/NEUES.md.gz
    DESTINATION ${docs})
add_custom_target(lesestoff ALL DEPENDS ${packed})
