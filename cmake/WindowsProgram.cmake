# zerna_windows_program(zerna "Was der Explorer dazu sagt"): gives a program what Windows reads from its file: icon,
# version, and the manifest with which it gets sharp letters on every screen, long paths and UTF-8. Nothing elsewhere.
function(zerna_windows_program target description)
    if(NOT WIN32)
        return()
    endif()
    set(folder ${PROJECT_SOURCE_DIR}/packaging/windows)
    set(ZERNA_PROGRAM ${target})
    set(ZERNA_DESCRIPTION ${description})
    configure_file(${folder}/programm.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
    configure_file(${folder}/programm.manifest.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES
        OBJECT_DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest;${PROJECT_BINARY_DIR}/zerna.ico")
endfunction()

if(WIN32)
    enable_language(RC)
    find_program(ICOTOOL icotool REQUIRED)
    file(GLOB pictures ${PROJECT_SOURCE_DIR}/packaging/icon/zerna-[0-9]*.png)
    add_custom_command(
        OUTPUT ${PROJECT_BINARY_DIR}/zerna.ico
        COMMAND ${ICOTOOL} --create --output=${PROJECT_BINARY_DIR}/zerna.ico ${pictures}
        DEPENDS ${pictures}
        VERBATIM)
    add_custom_target(zerna_icon ALL DEPENDS ${PROJECT_BINARY_DIR}/zerna.ico)
endif()
