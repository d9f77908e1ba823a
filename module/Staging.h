#pragma once

#include "exercises/API.h"
#include "platform/FileSystem.h"

namespace k73053 {

/// The working files of a question: put in place before it, judged at every check, removed after it.
class Staging {
public:
    /// Both must outlive this object.
    Staging(platform::FileSystem& files, exercises::API& api) : files_(files), api_(api) {}

    std::u16string hostFolder;      ///< ends with a backslash, as the host gives it
    std::u16string templatesFolder; ///< of the files marked as models

    /// Removes the working files of a question; those open in PowerPoint are closed first, unsaved. Failures other than
    /// a missing or refused file go to the error report.
    void Nettoyage(const automation::LateBound& question, const ppt::Application& application);

    /// Gives the delivered files of a question their working names. Failures go to the error report.
    void Renomme(const automation::LateBound& question);

    /// Working name of a question's first file.
    [[nodiscard]] static std::u16string firstFile(const automation::LateBound& question);

    /// The general checks of the learner's presentation. False leaves its code in `cause`.
    [[nodiscard]] bool VerifieTravail(std::int32_t questionNumber, const ppt::Application& application,
                                      std::u16string& cause);

private:
    [[nodiscard]] const std::u16string& folderOf(const automation::LateBound& file) const;

    platform::FileSystem& files_;
    exercises::API& api_;
};

} // namespace k73053
