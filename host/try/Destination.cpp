#include "host/try/Destination.h"

#include "automation/Text.h"
#include "host/language/Words.h"
#include "host/world/RealFile.h"

#include <stdexcept>

namespace host {

namespace {

bool isScenarioFile(const std::string& name) {
    return pathOf(name).extension() == ".scn";
}

} // namespace

Destination::Destination(const std::string& verb, const std::string& stated) {
    const std::size_t first = std::min(stated.find('"'), stated.size());
    file = trimmed(stated.substr(0, first));
    std::string rest = stated.substr(first);
    if (const std::size_t second = rest.find('"', 1); file.empty() && second != std::string::npos) {
        file = rest.substr(1, second - 1);
        rest = trimmed(rest.substr(second + 1));
        if (!isScenarioFile(file) && rest.empty()) {
            throw std::runtime_error("A title stands behind the name of a file: " + verb + " mine.scn " + stated);
        }
    }
    if (const std::size_t blank = file.find(' '); !isScenarioFile(file) && blank != std::string::npos) {
        throw std::runtime_error("A title stands in quotes: " + verb + " " + file.substr(0, blank) + " \"" +
                                 trimmed(file.substr(blank)) + '"');
    }
    if (!rest.empty() && (rest.size() == 1 || !rest.starts_with('"') || !rest.ends_with('"'))) {
        throw std::runtime_error("A title stands in quotes, and nothing behind it: " + verb + " mine.scn \"a title\"");
    }
    std::string inside = rest.empty() ? "" : rest.substr(1, rest.size() - 2);
    replaceAll(inside, "\"\"", "\"");
    title = rest.empty() ? pathOf(file).stem().u16string() : automation::fromUtf8(inside);
}

} // namespace host
