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

void addCourse(CLI::App& command, std::string& folder) {
    command.add_option("--course", folder, "Folder of the course's own files (07305306.ppt ...)");
}

} // namespace host
