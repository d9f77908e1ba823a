#pragma once

#include "automation/MemberTable.h"

#include <string>

namespace tests {

/// A published object with a member of every kind.
class Sample : public automation::Published {
public:
    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
    void PutNumber(std::int32_t number) noexcept { number_ = number; }
    [[nodiscard]] automation::ObjectPtr Target() const { return target_; }
    void PutTarget(automation::ObjectPtr target) { target_ = std::move(target); }
    [[nodiscard]] automation::ObjectPtr Child();
    [[nodiscard]] std::u16string Item(std::int32_t index) const;
    /// The numbers from `Number` down to 1.
    [[nodiscard]] automation::ObjectPtr Elements() const;
    [[nodiscard]] automation::Value Echo(automation::Value value) const { return value; }
    [[nodiscard]] std::int32_t Add(std::int32_t left, std::optional<std::int32_t> right) const;
    void Change(automation::Value& variable, automation::Value value) const { variable = std::move(value); }
    void Fail(std::int32_t number) const;
    void FailStrangely() const { throw 42; }
    /// Ends the process that the object lives in.
    void Die() const;
    /// Makes the process refuse calls for so many milliseconds.
    void BeBusy(std::int32_t milliseconds) const;

    static constexpr const char16_t* source = u"DLL K61027 - CLASSE Élève\n\r - SERVICE Vérifié";
    static constexpr const char16_t* description = u"Ça n'a pas marché: où est l'œuvre ?";
    static constexpr const char16_t* helpFile = u"aide.hlp";
    static constexpr std::int32_t helpContext = 1234;

private:
    std::int32_t number_ = 7;
    automation::ObjectPtr target_;
    automation::ObjectPtr child_;
};

} // namespace tests
