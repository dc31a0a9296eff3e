# zerna_zaehlwerk(target): counts in this program what Zaehlwerk.h names. The functions are read off its source, so that
# they are listed once.
function(zerna_zaehlwerk target)
    set(source ${PROJECT_SOURCE_DIR}/tests/support/Zaehlwerk.cpp)
    if(WIN32) # the open extent of a span, a std::size_t
        set(open Ly18446744073709551615E)
    else()
        set(open Lm18446744073709551615E)
    endif()
    file(STRINGS ${source} lines REGEX "\"_ZN5zerna")
    foreach(line IN LISTS lines)
        string(REPLACE "\" ZERNA_OPEN \"" "${open}" line "${line}")
        string(REGEX MATCH "_ZN5zerna[A-Za-z0-9_]+" name "${line}")
        list(APPEND options "LINKER:--wrap=${name}")
    endforeach()
    target_sources(${target} PRIVATE ${source})
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_options(${target} PRIVATE ${options})
endfunction()
