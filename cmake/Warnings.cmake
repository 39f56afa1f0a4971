# Warnings are errors, in every build. GCC 12 sees overlaps in std::string where there are none, hence no -Wrestrict.
add_library(ombrel_warnings INTERFACE)
target_compile_options(ombrel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                                                 -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Wno-restrict
                                                 -Werror)
