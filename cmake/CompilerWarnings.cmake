# What every target of this project is compiled with: C++20 and warnings as errors.
add_library(zerna_warnings INTERFACE)
target_compile_features(zerna_warnings INTERFACE cxx_std_20)
target_compile_options(zerna_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# Instrumented code gives compilers false alarms; the plain builds of the same sources refuse every warning.
if(NOT ZERNA_SANITIZE)
    target_compile_options(zerna_warnings INTERFACE -Werror)
endif()
# This GCC sees overlapping copies inside its own std::string where there are none, in optimised builds only.
target_compile_options(zerna_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
