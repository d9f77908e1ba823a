# cmake -DFILES="a b" -DOUT=x.cpp -P embed.cmake: writes files as the table that findPageFile searches.
separate_arguments(files UNIX_COMMAND "${FILES}")
set(contents "")
set(rows "")
set(count 0)
foreach(file ${files})
    file(READ "${file}" hex HEX)
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${hex}")
    get_filename_component(name "${file}" NAME)
    string(APPEND contents "constexpr char content${count}[] = {${bytes}};\n")
    string(APPEND rows "    {\"${name}\", {content${count}, sizeof content${count}}},\n")
    math(EXPR count "${count} + 1")
endforeach()
file(WRITE "${OUT}" "#include \"host/play/PageFile.h\"
#include <algorithm>
#include <array>
namespace host {
namespace {
${contents}constexpr std::array<PageFile, ${count}> files{{
${rows}}};
} // namespace
const PageFile* findPageFile(std::string_view name) noexcept {
    const auto* const found = std::find_if(files.begin(), files.end(), [&](const PageFile& file) { return file.name == name; });
    return found == files.end() ? nullptr : found;
}
} // namespace host
")
