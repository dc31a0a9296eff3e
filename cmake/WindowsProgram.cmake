# zerna_windows_program(zerna "Was der Explorer dazu sagt" [FILES]): gives a program what Windows reads from its file:
# icon, version, and the manifest with which it gets sharp letters on every screen, long paths and UTF-8; with FILES the
# icon of its documents, too. Nothing elsewhere.
function(zerna_windows_program target description)
    if(NOT WIN32)
        return()
    endif()
    set(ZERNA_FILE_ICON "")
    set(icons ${PROJECT_BINARY_DIR}/zerna.ico)
    if("FILES" IN_LIST ARGN)
        set(ZERNA_FILE_ICON "IDI_ICON2 ICON \"${PROJECT_BINARY_DIR}/zerna-datei.ico\"")
        list(APPEND icons ${PROJECT_BINARY_DIR}/zerna-datei.ico)
    endif()
    set(folder ${PROJECT_SOURCE_DIR}/packaging/windows)
    set(ZERNA_PROGRAM ${target})
    set(ZERNA_DESCRIPTION ${description})
    configure_file(${folder}/programm.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
    configure_file(${folder}/programm.manifest.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES
        OBJECT_DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest;${icons}")
endfunction()

if(WIN32)
    enable_language(RC)
    find_program(ICOTOOL icotool REQUIRED)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    set(sizes 16 24 32 48 64 256)
    set(icon ${PROJECT_SOURCE_DIR}/packaging/icon/zerna)
    set(drawing ${icon}-datei.svg)
    foreach(size IN LISTS sizes)
        list(APPEND program_pictures ${icon}-${size}.png)
        set(picture ${PROJECT_BINARY_DIR}/zerna-datei-${size}.png)
        list(APPEND file_pictures ${picture})
        add_custom_command(OUTPUT ${picture}
            COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} ${drawing} --output ${picture}
            DEPENDS ${drawing}
            VERBATIM)
    endforeach()
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/zerna.ico
        COMMAND ${ICOTOOL} --create --output=${PROJECT_BINARY_DIR}/zerna.ico ${program_pictures}
        DEPENDS ${program_pictures}
        VERBATIM)
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/zerna-datei.ico
        COMMAND ${ICOTOOL} --create --output=${PROJECT_BINARY_DIR}/zerna-datei.ico ${file_pictures}
        DEPENDS ${file_pictures}
        VERBATIM)
    add_custom_target(zerna_icon ALL DEPENDS ${PROJECT_BINARY_DIR}/zerna.ico ${PROJECT_BINARY_DIR}/zerna-datei.ico)
endif()
