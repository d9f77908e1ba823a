#include "tests/trials/histories/SecondReader.h"

#include <stdexcept>

namespace trials::histories {

std::vector<std::string> SecondReader::answerTo(const std::string& question) {
    asked_ << question << std::endl;
    std::vector<std::string> lines;
    for (std::string line; std::getline(answered_, line);) {
        if (line == "end") {
            return lines;
        }
        lines.push_back(line);
    }
    throw std::runtime_error(
        "the second reader is there no more; was it started with tests/simulator/interop/beside-hslf?");
}

} // namespace trials::histories
