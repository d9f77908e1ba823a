#pragma once

#include "host/report/Result.h"

namespace host::report {

/// A verdict that a question can come to, and the scenarios in which the host reads it.
struct Letter {
    std::string letter;
    bool isGeneral = false;             ///< a general error of the module
    bool isRemark = false;              ///< comes with a success
    std::vector<std::size_t> reachedBy; ///< places of the scenarios in their file, from 0; none where none does
};

/// The letters of a question and what else was read in its scenarios: first its own, then general errors.
[[nodiscard]] std::vector<Letter> lettersOf(const FileResult& file);

} // namespace host::report
