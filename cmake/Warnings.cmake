# Warnings are errors in every build by GCC, which has no word for some that Clang has. In optimized ones GCC 12 sees
# overlaps in std::string and unset values in std::optional where there are none.
add_library(ombrel_warnings INTERFACE)
target_compile_options(ombrel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                                                 -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
                                                 "$<$<CXX_COMPILER_ID:GNU>:-Wno-restrict;-Wno-maybe-uninitialized;-Werror>")
