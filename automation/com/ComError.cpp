#include "automation/com/ComError.h"

#include "automation/com/ComPtr.h"
#include "automation/com/WideText.h"

#include <array>
#include <optional>

namespace automation::com {

namespace {

constexpr std::uint32_t runTimeBase = 0x800A0000U;
constexpr std::int32_t lastRunTimeNumber = 0xFFFF;

constexpr std::array<std::pair<HRESULT, RunTimeError>, 9> dispatchErrors{{
    {DISP_E_MEMBERNOTFOUND, RunTimeError::MemberNotFound},
    {DISP_E_UNKNOWNNAME, RunTimeError::MemberNotFound},
    {DISP_E_BADPARAMCOUNT, RunTimeError::WrongNumberOfArguments},
    {DISP_E_PARAMNOTOPTIONAL, RunTimeError::ArgumentNotOptional},
    {DISP_E_TYPEMISMATCH, RunTimeError::TypeMismatch},
    {DISP_E_BADVARTYPE, RunTimeError::TypeMismatch},
    {DISP_E_OVERFLOW, RunTimeError::Overflow},
    {DISP_E_BADINDEX, RunTimeError::SubscriptOutOfRange},
    {E_OUTOFMEMORY, RunTimeError::OutOfMemory},
}};

std::optional<RunTimeError> dispatchError(HRESULT status) noexcept {
    for (const auto& [refused, error] : dispatchErrors) {
        if (refused == status) {
            return error;
        }
    }
    return std::nullopt;
}

/// The number that a status has inside.
std::int32_t numberOf(HRESULT status) noexcept {
    const auto bits = static_cast<std::uint32_t>(status);
    return (bits & 0xFFFF0000U) == runTimeBase ? static_cast<std::int32_t>(bits & 0xFFFFU) : status;
}

std::u16string systemText(HRESULT status) {
    std::array<wchar_t, 512> buffer{};
    constexpr DWORD options = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    const auto ask = [&](HRESULT number) {
        return FormatMessageW(options, nullptr, static_cast<DWORD>(number), 0, buffer.data(),
                              static_cast<DWORD>(buffer.size()), nullptr);
    };
    DWORD length = ask(status);
    if (length == 0 && HRESULT_FACILITY(status) == FACILITY_WIN32) {
        length = ask(HRESULT_CODE(status));
    }
    while (length > 0 && buffer.at(length - 1) <= L' ') {
        --length;
    }
    return fromWide({buffer.data(), length});
}

/// What an error without a text of its own says.
std::u16string usualText(std::int32_t number) {
    return number >= 0 && number <= lastRunTimeNumber ? std::u16string(describe(static_cast<RunTimeError>(number)))
                                                      : systemText(number);
}

/// Makes an error the thread's error object, for clients that call by interface.
void publish(const Error& error) {
    ComPtr<ICreateErrorInfo> writer;
    if (FAILED(CreateErrorInfo(writer.receive()))) {
        return;
    }
    const auto text = [](const std::u16string& part) { return std::wstring(part.begin(), part.end()); };
    writer->SetGUID(IID_IDispatch);
    writer->SetSource(text(error.source()).data());
    writer->SetDescription(text(error.description()).data());
    writer->SetHelpFile(text(error.helpFile()).data());
    writer->SetHelpContext(static_cast<DWORD>(error.helpContext()));
    if (const auto info = writer.as<IErrorInfo>()) {
        SetErrorInfo(0, info.get());
    }
}

void fill(EXCEPINFO& raised, const Error& error) {
    Bstr source(error.source());
    Bstr description(error.description());
    Bstr helpFile(error.helpFile());
    raised = EXCEPINFO();
    raised.bstrSource = source.release();
    raised.bstrDescription = description.release();
    raised.bstrHelpFile = helpFile.release();
    raised.dwHelpContext = static_cast<DWORD>(error.helpContext());
    raised.scode = statusOf(error);
}

} // namespace

void ExceptionInfo::clear() noexcept {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
    static_cast<EXCEPINFO&>(*this) = EXCEPINFO();
}

Error errorOf(HRESULT status) {
    if (const auto error = dispatchError(status)) {
        return Error(*error);
    }
    const std::int32_t number = numberOf(status);
    return {number, {}, usualText(number)};
}

Error errorOf(const EXCEPINFO& raised) {
    if (raised.scode == 0 && raised.wCode == 0) {
        return errorOf(DISP_E_EXCEPTION);
    }
    const auto refused = dispatchError(raised.scode);
    const std::int32_t number = refused             ? static_cast<std::int32_t>(*refused)
                                : raised.scode != 0 ? numberOf(raised.scode)
                                                    : raised.wCode;
    std::u16string description = Bstr::textOf(raised.bstrDescription);
    if (description.empty()) {
        description = usualText(number);
    }
    return {number, Bstr::textOf(raised.bstrSource), std::move(description), Bstr::textOf(raised.bstrHelpFile),
            static_cast<std::int32_t>(raised.dwHelpContext)};
}

void check(HRESULT status) {
    if (FAILED(status)) {
        throw errorOf(status);
    }
}

HRESULT statusOf(const Error& error) noexcept {
    const std::int32_t number = error.number();
    if (number < 0) {
        return number;
    }
    const bool leaves = number > 0 && number <= lastRunTimeNumber;
    const auto low = static_cast<std::uint32_t>(leaves ? number : static_cast<int>(RunTimeError::InvalidProcedureCall));
    const std::uint32_t status = runTimeBase + low;
    return static_cast<HRESULT>(status);
}

void forgetError() noexcept {
    SetErrorInfo(0, nullptr);
}

HRESULT reportCurrent(EXCEPINFO* raised) noexcept {
    try {
        forgetError(); // where this one cannot be said
        const Error error = currentError();
        publish(error);
        if (raised == nullptr) {
            return statusOf(error);
        }
        fill(*raised, error);
        return DISP_E_EXCEPTION;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

} // namespace automation::com
