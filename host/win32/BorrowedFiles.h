#pragma once

#include <filesystem>
#include <vector>

namespace host {

/// Files and folders of the real disk that are taken away again in the end.
class BorrowedFiles {
public:
    /// A folder of this name, empty; one that was there is put aside and comes back.
    explicit BorrowedFiles(std::filesystem::path folder);
    ~BorrowedFiles();
    BorrowedFiles(const BorrowedFiles&) = delete;
    BorrowedFiles& operator=(const BorrowedFiles&) = delete;
    BorrowedFiles(BorrowedFiles&&) = delete;
    BorrowedFiles& operator=(BorrowedFiles&&) = delete;

    /// To be called before a file is created: it, or the first folder created for it, goes in the end.
    void announce(const std::filesystem::path& file);

private:
    std::filesystem::path folder_;
    std::filesystem::path aside_; ///< where the folder that was there lies; empty where there was none
    std::vector<std::filesystem::path> created_;
};

} // namespace host
