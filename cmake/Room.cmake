# zerna_room(core SOURCES a.cpp … LINKS zerna::parser …): one static library per room with its alias.
function(zerna_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(zerna_${name} STATIC ${ROOM_SOURCES})
    add_library(zerna::${name} ALIAS zerna_${name})
    target_include_directories(zerna_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(zerna_${name} PUBLIC ${ROOM_LINKS} zerna_sanitizers PRIVATE zerna_warnings)
    target_compile_features(zerna_${name} PUBLIC cxx_std_20)
endfunction()
