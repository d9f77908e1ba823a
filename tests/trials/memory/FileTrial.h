#pragma once

#include "host/run/Snapshot.h"
#include "tests/trials/Host.h"
#include "tests/trials/memory/ScarceMemory.h"

namespace trials::memory {

/// What PowerPoint does with a presentation's file.
struct FileOperation {
    std::string_view name;
    std::u16string_view member; ///< of Presentations for opening, else of the presentation
};

inline constexpr std::array fileOperations{
    FileOperation{"opening", u"Open"},
    FileOperation{"saving", u"Save"},
    FileOperation{"saving over another file", u"SaveAs"},
};

/// The presentations that are open and the files of the host's folder with what is in them.
struct Holdings {
    explicit Holdings(World& world);

    std::vector<OpenPresentation> presentations;
    std::vector<std::pair<std::u16string, Bytes>> files;

    friend bool operator==(const Holdings&, const Holdings&) = default;
};

/// What came of such an operation.
struct FileOutcome {
    std::optional<automation::Error> error;
    std::size_t asked = 0; ///< allocations
    bool hasStruck = false;
    Holdings before;
    Holdings failed;  ///< as it has left them
    Holdings settled; ///< once it has been done again where it had failed
};

/// Has an operation done in which an allocation fails, with a file in the host's folder. Raises what it raises when it
/// is done again.
[[nodiscard]] FileOutcome tryFile(World& world, const std::u16string& name, const FileOperation& operation,
                                  std::size_t position, ScarceMemory::Lasting lasting);

/// What is wrong with an outcome, measured by that of an operation in which nothing failed: an error but 7, a file that
/// is neither as before nor as it should become, anything left over.
[[nodiscard]] std::vector<std::string> findingsIn(const FileOutcome& outcome, const FileOutcome& flawless);

} // namespace trials::memory
