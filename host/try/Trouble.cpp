#include "host/try/Trouble.h"

#include "automation/Error.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

struct Advice {
    std::int32_t error;
    std::string_view text;
    std::string_view said{}; ///< what the message must hold: the same number is raised elsewhere as well
};

constexpr std::int32_t numberOf(automation::RunTimeError error) {
    return static_cast<std::int32_t>(error);
}

constexpr auto advices = std::to_array<Advice>({
    {numberOf(automation::RunTimeError::TypeMismatch), "?x prints what a value x is"},
    {numberOf(automation::RunTimeError::ObjectNotSet), "Set x = ... gives a variable its object", "[K73053]"},
    {numberOf(automation::RunTimeError::ObjectNotSet), "reset prepares the question anew", " - SERVICE "},
    {numberOf(automation::RunTimeError::ObjectRequired), "?x prints what a value x is"},
    {numberOf(automation::RunTimeError::CannotCreateObject), "reset prepares the question anew"},
    {numberOf(automation::RunTimeError::MemberNotFound), "members x lists those of an object x", "has no member"},
    {automation::remote::disconnected, "reset prepares the question anew"},
    {automation::remote::serverUnavailable, "reset prepares the question anew"},
});

std::string_view adviceFor(const language::Failure& failure) {
    const auto* const found = std::find_if(advices.begin(), advices.end(), [&](const Advice& each) {
        return each.error == failure.error && failure.remark.message.find(each.said) != std::string::npos;
    });
    return found == advices.end() ? std::string_view() : found->text;
}

std::string explained(const language::Remark& remark) {
    return "column " + std::to_string(remark.place.column) + ": " + remark.message;
}

} // namespace

std::string explained(const language::SyntaxError& error) {
    return explained(error.remark);
}

std::string explained(const language::Failure& failure) {
    const std::string_view advice = adviceFor(failure);
    return explained(failure.remark) + (advice.empty() ? "" : " (" + std::string(advice) + ")");
}

} // namespace host
