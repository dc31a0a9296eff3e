# Sanitizers named in ZERNA_SANITIZE (comma separated); the first report ends the program.
add_library(zerna_sanitizers INTERFACE)
if(ZERNA_SANITIZE)
    target_compile_options(zerna_sanitizers INTERFACE
        -fsanitize=${ZERNA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zerna_sanitizers INTERFACE -fsanitize=${ZERNA_SANITIZE})
endif()
if(ZERNA_FUZZ)
    target_compile_options(zerna_sanitizers INTERFACE -fsanitize=fuzzer-no-link)
endif()
