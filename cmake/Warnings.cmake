# Warnings are errors, in every build.
add_library(ombrel_warnings INTERFACE)
target_compile_options(ombrel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                                                 -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
