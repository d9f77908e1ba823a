#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace automation {

/// The errors of the automation run time, by their numbers. They keep these numbers inside; at the COM border n leaves
/// as 0x800A0000 + n.
enum class RunTimeError : std::int32_t {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    FileAlreadyExists = 58,
    PermissionDenied = 70,
    PathAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    ObjectRequired = 424,
    CannotCreateObject = 429,
    MemberNotFound = 438,
    NamedArgumentNotFound = 448,
    ArgumentNotOptional = 449,
    WrongNumberOfArguments = 450,
};

/// What the system says of another process that does not answer, or no longer.
namespace remote {
inline constexpr std::int32_t callRejected = static_cast<std::int32_t>(0x80010001U);
inline constexpr std::int32_t retryLater = static_cast<std::int32_t>(0x8001010AU);
inline constexpr std::int32_t disconnected = static_cast<std::int32_t>(0x80010108U);
inline constexpr std::int32_t serverUnavailable = static_cast<std::int32_t>(0x800706BAU);
inline constexpr std::int32_t callFailed = static_cast<std::int32_t>(0x800706BEU);
inline constexpr std::int32_t callNotExecuted = static_cast<std::int32_t>(0x800706BFU);
inline constexpr std::int32_t serverDied = static_cast<std::int32_t>(0x80010007U);
inline constexpr std::int32_t serverDiedBefore = static_cast<std::int32_t>(0x80010012U);
inline constexpr std::int32_t objectNotConnected = static_cast<std::int32_t>(0x800401FDU);

/// True for the numbers that say that the process behind an object is gone for good.
[[nodiscard]] bool isDead(std::int32_t number) noexcept;
} // namespace remote

/// The one exception type that crosses layers: an automation error with its number, source, description and help.
class Error : public std::exception {
public:
    Error(std::int32_t number, std::u16string source, std::u16string description, std::u16string helpFile = {},
          std::int32_t helpContext = 0);

    /// A run-time error, with the run time's own text; its source is the library's name.
    explicit Error(RunTimeError error);

    /// Run-time number, or an HRESULT; 0 where no error had occurred.
    [[nodiscard]] std::int32_t number() const noexcept { return number_; }
    [[nodiscard]] const std::u16string& source() const noexcept { return source_; }
    [[nodiscard]] const std::u16string& description() const noexcept { return description_; }
    [[nodiscard]] const std::u16string& helpFile() const noexcept { return helpFile_; }
    [[nodiscard]] std::int32_t helpContext() const noexcept { return helpContext_; }

    [[nodiscard]] bool is(RunTimeError error) const noexcept { return number_ == static_cast<std::int32_t>(error); }

    /// Number, description and source in UTF-8.
    [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

private:
    std::int32_t number_;
    std::u16string source_;
    std::u16string description_;
    std::u16string helpFile_;
    std::int32_t helpContext_;
    std::string what_;
};

/// The run time's text for an error.
[[nodiscard]] std::u16string_view describe(RunTimeError error) noexcept;

/// Raises a run-time error.
[[noreturn]] void raise(RunTimeError error);

/// The exception being handled, as an automation error; one that is none becomes a run-time error (memory that ran out
/// is 7, anything else 5). To be called in a handler.
[[nodiscard]] Error currentError();

} // namespace automation
