#pragma once

#include "automation/com/Ole.h"

#include <cassert>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace automation::com {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// A text as Windows calls take it, with a NUL at its end.
class WideText {
public:
    explicit WideText(std::u16string_view text) : text_(text.begin(), text.end()) {}

    [[nodiscard]] const wchar_t* get() const noexcept { return text_.c_str(); }

private:
    std::wstring text_;
};

/// A text that a Windows call gave.
[[nodiscard]] inline std::u16string fromWide(std::wstring_view text) {
    return {text.begin(), text.end()};
}

/// An automation string; null is the empty text.
class Bstr {
public:
    Bstr() noexcept = default;
    explicit Bstr(std::u16string_view text)
        : text_(SysAllocStringLen(WideText(text).get(), static_cast<UINT>(text.size()))) {
        if (text_ == nullptr) {
            throw std::bad_alloc();
        }
    }
    ~Bstr() { SysFreeString(text_); }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }

    [[nodiscard]] BSTR get() const noexcept { return text_; }
    /// Where a call leaves the text that it gives out; to be used on the empty text.
    [[nodiscard]] BSTR* receive() noexcept {
        assert(text_ == nullptr);
        return &text_;
    }
    [[nodiscard]] BSTR release() noexcept { return std::exchange(text_, nullptr); }

    [[nodiscard]] std::u16string text() const { return textOf(text_); }
    [[nodiscard]] static std::u16string textOf(BSTR text) {
        return text == nullptr ? std::u16string() : fromWide({text, SysStringLen(text)});
    }

private:
    BSTR text_ = nullptr;
};

} // namespace automation::com
