#pragma once

#include "host/report/Result.h"

namespace host::report {

/// A verdict that a question can come to, and the scenarios in which the host reads it.
struct Letter {
    std::string letter;
    bool isGeneral = false;             ///< a general error of the module
    bool isRemark = false;              ///< comes with a success
    std::vector<std::size_t> reachedBy; ///< places of the scenarios in their file, from 0; none where none does
    std::string meaning{};              ///< as the file declares it
    std::size_t line = 0;               ///< where the file declares it; 0 where it does not
};

/// The letters that a file declares and what else was read in its scenarios: first its own, then general errors.
[[nodiscard]] std::vector<Letter> lettersOf(const FileResult& file);
/// What a file that declares letters and its scenarios, which have all passed, lack of one another: a letter that is
/// read and not declared; in the file that a question is named after also one that no scenario
/// reaches, where all have run.
[[nodiscard]] std::vector<language::Remark> lettersAmiss(const FileResult& file);

} // namespace host::report
