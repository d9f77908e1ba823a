#pragma once

#include "host/win32/Journal.h"

namespace host {

/// Files and folders of the real disk that go when the journal gives everything back.
class BorrowedFiles {
public:
    /// A folder of this name, without a backslash at its end, is empty; what was there is put aside until then.
    /// `journal` must outlive this object.
    BorrowedFiles(Journal& journal, const std::filesystem::path& folder);

    /// To be called before a file is created: it goes, or the first folder created for it. What is in the borrowed folder
    /// goes with that.
    void announce(const std::filesystem::path& file);

private:
    Journal& journal_;
    std::filesystem::path folder_;
};

} // namespace host
