#include "host/command/Library.h"

#include "exercises/Catalogue.h"
#include "host/language/Parser.h"
#include "host/language/Words.h"
#include "host/reason/Delivery.h"
#include "host/world/RealFile.h"
#include "simulator/files/compound/Layout.h"

#include <algorithm>
#include <numeric>

namespace host {

namespace fs = std::filesystem;
using exercises::firstQuestion;
using exercises::lastQuestion;

namespace {
constexpr const char* fileType = ".scn";
} // namespace

std::vector<fs::path> Library::files() const {
    if (std::error_code failed; !fs::is_directory(folder_, failed)) {
        throw UsageError("no folder of scenarios: " + folder_.string());
    }
    std::vector<fs::path> all;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder_)) {
        if (entry.is_regular_file() && entry.path().extension() == fileType) {
            all.push_back(entry.path());
        }
    }
    std::sort(all.begin(), all.end());
    return all;
}

fs::path Library::fileOf(std::int32_t question) const {
    if (question < firstQuestion || question > lastQuestion) {
        throw UsageError("no question " + std::to_string(question) + ": the course has " +
                         std::to_string(firstQuestion) + " to " + std::to_string(lastQuestion));
    }
    const fs::path name = "0" + std::to_string(question) + fileType;
    const std::vector<fs::path> all = files();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const fs::path& file) { return file.filename() == name; });
    return found == all.end() ? folder_ / name : *found;
}

std::vector<fs::path> Library::filesOf(const std::vector<std::int32_t>& questions) const {
    std::vector<fs::path> paths(questions.size());
    std::transform(questions.begin(), questions.end(), paths.begin(),
                   [this](std::int32_t question) { return fileOf(question); });
    return paths;
}

std::vector<fs::path> Library::filesOfCourse(const std::vector<std::int32_t>& questions) const {
    if (!questions.empty()) {
        return filesOf(questions);
    }
    std::vector<std::int32_t> all(lastQuestion - firstQuestion + 1);
    std::iota(all.begin(), all.end(), firstQuestion);
    return filesOf(all);
}

fs::path Library::fileNamed(const std::string& name) const {
    if (name.empty()) {
        throw UsageError("which question? Name its number, or a scenario file");
    }
    constexpr std::size_t longest = 9; // an std::int32_t has room for
    const bool isNumber = name.size() <= longest && name.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? fileOf(std::stoi(name)) : pathOf(name);
}

std::vector<fs::path> Library::filesNamed(const std::vector<std::string>& names) const {
    std::vector<fs::path> paths;
    for (const std::string& name : names) {
        addOnce(paths, fileNamed(name));
    }
    return names.empty() ? files() : paths;
}

std::vector<language::ScenarioFile> load(const std::vector<fs::path>& paths) {
    std::vector<language::ScenarioFile> files;
    std::vector<language::WrongLines> wrong;
    for (const fs::path& path : paths) {
        if (std::error_code failed; !fs::exists(path, failed)) {
            throw UsageError("no scenario file: " + path.string());
        }
        const Bytes bytes = contentsOf(path);
        const std::string content(bytes.begin(), bytes.end());
        if (content.starts_with(simulator::compound::signature)) {
            throw UsageError(path.string() + " is a presentation, not a scenario file: recheck judges it");
        }
        try {
            files.push_back(language::parse(path.string(), content));
        } catch (const language::WrongLines& found) {
            wrong.push_back(found);
        }
    }
    if (!wrong.empty()) {
        throw WrongFiles(std::move(wrong));
    }
    return files;
}

language::ScenarioFile load(const fs::path& path) {
    return std::move(load(std::vector{path}).front());
}

Course courseOf(const language::ScenarioFile& file, const std::string& folder, const WorldMaker& makeWorld) {
    try {
        return folder.empty() ? Course(file, makeWorld) : Course(pathOf(folder), file.question);
    } catch (const language::Failure& failure) {
        throw UsageError(failure.remark.in(file.name));
    } catch (const std::runtime_error& error) {
        throw UsageError(error.what());
    }
}

std::string shortfallOf(const Course& course, const language::ScenarioFile& file, const WorldMaker& makeWorld) {
    std::string lines;
    for (const language::Remark& remark : reason::shortcomingsOf(course, file, makeWorld)) {
        std::string message = remark.message;
        replaceAll(message, "; ", ";\n    ");
        lines += "  " + message + '\n';
    }
    return lines.empty() ? lines
                         : "The presentation delivered is not what question " + std::to_string(file.question) +
                               " needs:\n" + lines;
}

} // namespace host
