#include "host/command/Options.h"

namespace host {

namespace {

std::string withoutZeros(const std::string& number) {
    return number.substr(std::min(number.find_first_not_of('0'), number.size()));
}

} // namespace

CLI::Option* addQuestion(CLI::App& command, const std::string& name, std::int32_t& question) {
    return command.add_option(name, question, "Number of the question")->transform(withoutZeros);
}

void addQuestions(CLI::App& command, std::vector<std::int32_t>& questions) {
    command.add_option("questions", questions, "Numbers of questions (all)")->transform(withoutZeros);
}

CLI::Option* addScenarioFile(CLI::App& command, std::string& named) {
    return command.add_option("question,--file", named, "Number of the question, or a scenario file")
        ->type_name("N|F.scn");
}

void addScenarioFiles(CLI::App& command, std::vector<std::string>& named) {
    command.add_option("questions,--file", named, "Numbers of questions, scenario files (all)")->type_name("N|F.scn");
}

CLI::Validator wholeNumber() {
    return {[](const std::string& text) {
                const bool isOne = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos &&
                                   text.find_first_not_of('0') != std::string::npos;
                return isOne ? std::string() : text + " is no whole number above 0";
            },
            ""};
}

void addCourse(CLI::App& command, std::string& folder) {
    command.add_option("--course", folder, "Folder of the course's own files (07305306.ppt ...)");
}

} // namespace host
