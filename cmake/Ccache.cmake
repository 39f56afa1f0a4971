# Compiles through ccache where it is installed.
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(OMBREL_CCACHE ccache)
  if(OMBREL_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${OMBREL_CCACHE})
  endif()
endif()
