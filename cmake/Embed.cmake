# embed(SOURCE HEADER FUNCTION FILES...): writes the content of files as a source, and in it the function that finds them by their
# names, which the header declares. It is written anew when one of the files changes.
function(embed source header function)
    set(contents "")
    set(rows "")
    foreach(file ${ARGN})
        file(READ ${file} hex HEX)
        string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${hex}")
        get_filename_component(name ${file} NAME)
        string(MAKE_C_IDENTIFIER ${name} identifier)
        string(APPEND contents "    static constexpr char ${identifier}[] = {${bytes}};\n")
        string(APPEND rows "        {\"${name}\", {${identifier}, sizeof ${identifier}}},\n")
    endforeach()
    list(LENGTH ARGN count)
    file(GENERATE OUTPUT ${source} CONTENT "// NOLINTBEGIN: bytes of files
#include \"${header}\"
#include <algorithm>
#include <array>
namespace host {
const PageFile* ${function}(std::string_view name) noexcept {
${contents}    static constexpr std::array<PageFile, ${count}> files{{
${rows}    }};
    const auto* const found = std::find_if(files.begin(), files.end(), [&](const PageFile& file) { return file.name == name; });
    return found == files.end() ? nullptr : found;
}
} // namespace host
// NOLINTEND
")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ARGN})
endfunction()
