# Memory errors and undefined behaviour end a sanitized program at once, and so do the standard library's own checks.
if(OMBREL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()
# A fuzzer needs to see the way that an input takes through the code.
if(OMBREL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
