# What runs once per call or per click ships small instead of fast: a third of the code, and less of it to load at the
# start. Loops over values and pixels, and what they call, are the FAST sources of such a room, or lie in a room without
# this.
add_library(zerna_small INTERFACE)
target_compile_options(zerna_small INTERFACE $<$<CONFIG:Release>:-Os>)
# What no program refers to does not ship.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_BUILD_TYPE STREQUAL "Release")
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections -Wl,-z,pack-relative-relocs)
endif()

# What ships (zerna_shipped) is optimised as a whole, which takes a seventh off it. Everything else is linked from the plain
# code in the same objects: in a moment, and with the calls from source to source that the benchmarks count.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-flto -ffat-lto-objects)
    add_link_options($<IF:$<BOOL:$<TARGET_PROPERTY:ZERNA_SHIPPED>>,-flto=auto,-fno-lto>)
endif()
function(zerna_shipped program)
    set_target_properties(${program} PROPERTIES ZERNA_SHIPPED ON)
endfunction()

# zerna_room(core SOURCES a.cpp … LINKS zerna::parser … [SMALL [FAST b.cpp …]]): one static library per room with its
# alias.
function(zerna_room name)
    cmake_parse_arguments(ROOM "SMALL" "" "SOURCES;FAST;LINKS" ${ARGN})
    add_library(zerna_${name} STATIC ${ROOM_SOURCES} ${ROOM_FAST})
    set_source_files_properties(${ROOM_FAST} PROPERTIES COMPILE_OPTIONS "$<$<CONFIG:Release>:-O3>")
    add_library(zerna::${name} ALIAS zerna_${name})
    target_include_directories(zerna_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(zerna_${name} PUBLIC ${ROOM_LINKS} zerna_sanitizers
        PRIVATE zerna_warnings $<$<BOOL:${ROOM_SMALL}>:zerna_small>)
    target_compile_features(zerna_${name} PUBLIC cxx_std_20)
endfunction()
