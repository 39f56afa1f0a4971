# ombrel_precompile(TARGET HEADER...): headers of libraries that most of the target's sources include, compiled once for
# all of them. A compiler cache does the same and more, and can't follow compiled headers: one of the two is at work.
function(ombrel_precompile target)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
