# Ombrel.dll: the plug-in behind the framework's interfaces.
enable_language(RC)

configure_file(adapters/decal/Ombrel.rc.in ${CMAKE_BINARY_DIR}/generated/Ombrel.rc @ONLY)
file(GLOB icons CONFIGURE_DEPENDS adapters/decal/icons/*.ico)
set_source_files_properties(${CMAKE_BINARY_DIR}/generated/Ombrel.rc PROPERTIES OBJECT_DEPENDS "${icons}")

file(GLOB decal_sources CONFIGURE_DEPENDS adapters/decal/*.cpp)
list(REMOVE_ITEM decal_sources ${CMAKE_SOURCE_DIR}/adapters/decal/Module.cpp)
add_library(ombrel_decal STATIC ${decal_sources})
target_link_libraries(ombrel_decal PUBLIC ombrel_core ole32 oleaut32 uuid winmm dsound
                                   PRIVATE pugixml::pugixml ombrel_warnings)

add_library(Ombrel MODULE adapters/decal/Module.cpp adapters/decal/Ombrel.def ${CMAKE_BINARY_DIR}/generated/Ombrel.rc)
target_include_directories(Ombrel PRIVATE adapters/decal/icons)
target_link_libraries(Ombrel PRIVATE ombrel_decal ombrel_warnings)
# Everything but the system's own libraries is in the file. Exports are named without their calling convention's marks.
target_link_options(Ombrel PRIVATE -static -Wl,--enable-stdcall-fixup -Wl,--gc-sections)
set_target_properties(Ombrel PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
