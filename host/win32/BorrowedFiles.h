#pragma once

#include "host/win32/Journal.h"
#include "host/world/Files.h"

namespace host {

/// Files and folders of the real disk that go when the journal gives everything back.
class BorrowedFiles final : public Files {
public:
    /// A folder of this name, without a backslash at its end, is empty; what was there is put aside until then.
    /// `journal` must outlive this object.
    BorrowedFiles(Journal& journal, const std::filesystem::path& folder);

    void setAttributes(std::u16string_view path, std::uint32_t attributes) override;
    /// To be called before a file is created or written: it goes, or the first folder created for it. What is in the
    /// borrowed folder goes with that. Raises PermissionDenied (70) where it is there and was not announced.
    void announce(const std::filesystem::path& file);
    /// Raises PermissionDenied (70) for a file that was not announced: nobody would give it back.
    void demandOwn(const std::filesystem::path& file) const;

private:
    [[nodiscard]] std::filesystem::path realPath(std::u16string_view path) const override { return path; }
    void prepareToWrite(std::u16string_view path) override;
    [[nodiscard]] bool isOwn(const std::filesystem::path& file) const;

    Journal& journal_;
    std::vector<std::filesystem::path> own_; ///< files and folders
};

} // namespace host
