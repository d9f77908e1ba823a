# Standard headers that nearly every source needs: compiled once, with the lowest component.
set(standard_headers
    <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <span> <string> <string_view> <utility>
    <variant> <vector>)
set(lowest_component automation)

# component(NAME DEPENDS...): the static library of the folder it is called in. A component includes its own headers and
# those of the components named, as "folder/Header.h", and no others: the order of the floors is the order of the links.
# What only Windows or only other systems have stands in subfolders named com, win32 and posix, which are components of
# their own.
function(component name)
    file(GLOB_RECURSE sources RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *.cpp *.h)
    list(FILTER sources EXCLUDE REGEX "^(com|posix|win32|tests)/|(^|/)main\\.cpp$")
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE compiler)
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    if(name STREQUAL lowest_component)
        target_precompile_headers(${name} PRIVATE ${standard_headers})
    else()
        target_precompile_headers(${name} REUSE_FROM ${lowest_component})
    endif()
endfunction()
