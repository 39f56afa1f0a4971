# The libraries for the cross build, under the names that the native packages give them. Headers of the native packages
# serve where a library is headers alone; pugixml is compiled from its source package, which script/fetch-pugixml fetches.
set(host_headers ${CMAKE_BINARY_DIR}/host-headers)
file(MAKE_DIRECTORY ${host_headers})
foreach(library fmt tsl nlohmann)
  file(CREATE_LINK /usr/include/${library} ${host_headers}/${library} SYMBOLIC)
endforeach()
foreach(library fmt::fmt tsl::ordered_map nlohmann_json::nlohmann_json)
  add_library(${library} INTERFACE IMPORTED)
  target_include_directories(${library} SYSTEM INTERFACE ${host_headers})
endforeach()
target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY=1)

set(pugixml_source ${CMAKE_SOURCE_DIR}/build-deps/pugixml/src)
if(NOT EXISTS ${pugixml_source}/pugixml.cpp)
  message(FATAL_ERROR "The source of pugixml is missing: run script/fetch-pugixml")
endif()
add_library(pugixml STATIC ${pugixml_source}/pugixml.cpp)
target_include_directories(pugixml SYSTEM PUBLIC ${pugixml_source})
add_library(pugixml::pugixml ALIAS pugixml)

add_compile_definitions(_WIN32_WINNT=0x0601)
