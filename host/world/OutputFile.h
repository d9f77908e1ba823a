#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// A file that this program's user asks it to write. It comes into its place whole or not at all, and no other file of
/// the user's goes for it.
class OutputFile {
public:
    /// A file that stands there already is replaced only where it begins with `replaced`, as those do that this program
    /// wrote; all do with an empty text, and where there is none, no file is. `otherwise` says what the user may do
    /// beside naming another file. All in UTF-8.
    OutputFile(std::string name, std::optional<std::string> replaced, std::string otherwise = {});

    /// As its user names it.
    [[nodiscard]] const std::string& name() const noexcept { return name_; }

    /// Raises std::runtime_error where something stands in its place that may not be replaced.
    void requireReplaceable() const;
    /// Raises std::runtime_error where it is one of the files that are read.
    void requireNoneOf(const std::vector<std::filesystem::path>& inputs) const;
    /// Writes the file. Raises std::runtime_error where it may not be written or replaced, MachineFault where it cannot
    /// be written to its end; what stood there stays then.
    void write(std::string_view content) const;

    /// Before long work that several files are to tell of: raises std::runtime_error where one of them is also another
    /// or one of the files that are read, or cannot be written. Then removes what they hold of earlier work: where the
    /// new does not come to its end, nobody takes the old for its outcome.
    static void prepare(const std::vector<OutputFile>& files, const std::vector<std::filesystem::path>& inputs);

private:
    [[nodiscard]] bool isAt(const std::filesystem::path& other) const;
    std::string name_;
    std::filesystem::path path_; ///< behind all links
    std::optional<std::string> replaced_;
    std::string otherwise_;
};

} // namespace host
