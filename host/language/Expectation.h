#pragma once

#include "automation/Error.h"

#include <optional>
#include <string>
#include <vector>

namespace host {

/// An error in words, on one line: `error 53 Fichier introuvable [CLASSE Module - SERVICE Renomme]`.
[[nodiscard]] std::string inWords(const automation::Error& error);

/// What a host reads after a TestePoint.
struct Reading {
    std::optional<automation::Error> error; ///< what TestePoint, or reading its verdict, raised
    bool erreurGenerale = false;
    std::u16string causeErreur;
    bool bravoNuance = false;
    std::vector<std::u16string> complement;
    std::string meaning; ///< what it says of the learner's work; empty where nobody knows
    std::string reason;  ///< what decided, in sentences; empty where nobody has watched

    /// In words: `the letter "C" with the complement " 3"`.
    [[nodiscard]] std::string display() const;
    /// The same with meaning and reason: `the letter "B": ZOR4 is too wide. Slide 1, shape 4 (ZOR4): Width is 60.`
    [[nodiscard]] std::string explained() const;
};

/// An error that must be raised.
struct ExpectedError {
    std::int32_t number = 0;
    std::vector<std::u16string> parts; ///< what its source must contain

    [[nodiscard]] bool matches(const automation::Error& error) const;
    [[nodiscard]] std::string display() const;
};

/// What a `check` says that the host must read.
struct Expectation {
    enum class Kind : std::uint8_t { Letter, Success, Remark, General, Error };

    Kind kind = Kind::Success;
    std::u16string letter;
    std::vector<std::u16string> complement;
    ExpectedError error;

    [[nodiscard]] bool matches(const Reading& reading) const;
    /// True for the outcomes by which a learner passes; question 305 lets a right answer pass by raising number 0.
    [[nodiscard]] bool isSuccess() const noexcept;
    [[nodiscard]] std::string display() const;
};

} // namespace host
