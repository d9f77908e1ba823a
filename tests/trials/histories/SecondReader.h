#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace trials::histories {

/// Another program that reads presentations: it is asked through two pipes, `asked` and `answered`, in a folder.
class SecondReader {
public:
    /// Waits until the other side has opened the pipes.
    explicit SecondReader(const std::filesystem::path& folder)
        : asked_(folder / "asked"), answered_(folder / "answered") {}

    /// What it sees in a file, in the lines of `viewOf`; one line, "refused" and why, where it cannot read it. Raises
    /// std::runtime_error where the program is there no more.
    [[nodiscard]] std::vector<std::string> view(const std::filesystem::path& file) { return answerTo(file.string()); }
    /// Processor time in which it reads a file, in microseconds.
    [[nodiscard]] long timeOf(const std::filesystem::path& file) {
        return std::stol(answerTo("time\t" + file.string()).front());
    }

private:
    [[nodiscard]] std::vector<std::string> answerTo(const std::string& question);

    std::ofstream asked_;
    std::ifstream answered_;
};

} // namespace trials::histories
