#include "host/win32/Journal.h"

#include "automation/com/ComError.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace host {

namespace fs = std::filesystem;

namespace {

constexpr wchar_t endOfLine = L'\n';

void require(bool succeeded) {
    if (!succeeded) {
        automation::com::check(HRESULT_FROM_WIN32(GetLastError()));
    }
}

/// For this process alone: that it is open says that a run is on its way.
Handle openAlone(const fs::path& path) {
    fs::create_directories(path.parent_path());
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION) {
        throw std::runtime_error("another exercise-host uses PowerPoint on this desktop: wait until it has ended");
    }
    require(file != INVALID_HANDLE_VALUE);
    return Handle(file);
}

/// Gives loans back, the last one first; those that cannot be given back stay. Returns how many were.
std::size_t giveBackAll(std::vector<Loan>& loans, void (Loan::*giveBack)() const) {
    std::vector<Loan> kept;
    std::size_t given = 0;
    for (; !loans.empty(); loans.pop_back()) {
        try {
            (loans.back().*giveBack)();
            ++given;
        } catch (const std::exception& error) {
            std::fprintf(stderr, "exercise-host: not given back: %s\n", error.what());
            kept.insert(kept.begin(), loans.back());
        }
    }
    loans = std::move(kept);
    return given;
}

} // namespace

Journal::Journal() : file_(openAlone(path())) {
    readLeft();
}

Journal::~Journal() {
    giveBack();
    file_ = Handle();
    if (left_.empty() && own_.empty()) {
        std::error_code ignored;
        fs::remove(path(), ignored);
        fs::remove(path().parent_path(), ignored);
    }
}

void Journal::note(Loan loan) {
    append(loan);
    own_.push_back(std::move(loan));
}

std::size_t Journal::giveBack() noexcept {
    std::size_t given = 0;
    try {
        given += giveBackAll(own_, &Loan::giveBack);
        given += giveBackAll(left_, &Loan::recover);
        rewrite();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "exercise-host: what was borrowed cannot be noted: %s\n", error.what());
    }
    return given;
}

fs::path Journal::path() {
    std::array<wchar_t, MAX_PATH> folder{};
    const DWORD length = GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), static_cast<DWORD>(folder.size()));
    const bool isSet = length > 0 && length < folder.size();
    return (isSet ? fs::path(folder.data()) : fs::temp_directory_path()) / "K73053" / "borrowed.txt";
}

void Journal::readLeft() {
    LARGE_INTEGER size{};
    require(GetFileSizeEx(file_.get(), &size) != FALSE);
    std::wstring text(static_cast<std::size_t>(size.QuadPart) / sizeof(wchar_t), L'\0');
    DWORD read = 0;
    require(ReadFile(file_.get(), text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)), &read, nullptr) !=
            FALSE);
    // What follows the last end of line was not written to its end, and so not followed by its change.
    std::size_t start = 0;
    for (std::size_t end = text.find(endOfLine); end != std::wstring::npos; end = text.find(endOfLine, start)) {
        left_.push_back(Loan::read(std::wstring_view(text).substr(start, end - start)));
        start = end + 1;
    }
}

void Journal::rewrite() {
    require(SetFilePointer(file_.get(), 0, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER);
    require(SetEndOfFile(file_.get()) != FALSE);
    for (const auto* const loans : {&left_, &own_}) {
        for (const Loan& loan : *loans) {
            append(loan);
        }
    }
}

void Journal::append(const Loan& loan) {
    const std::wstring text = loan.line() + endOfLine;
    DWORD written = 0;
    require(WriteFile(file_.get(), text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)), &written, nullptr) !=
            FALSE);
}

} // namespace host
