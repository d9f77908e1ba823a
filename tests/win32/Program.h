#pragma once

#include "automation/Unmoved.h"

#include <windows.h>

#include <filesystem>
#include <string>

namespace tests {

/// A program that was built, run as its user runs it, with what it prints.
class Program : automation::Unmoved {
public:
    /// Starts a program of the build, named by its path there; `arguments` as a command line has them.
    Program(const std::wstring& name, const std::wstring& arguments);
    /// Ends it where it still runs.
    ~Program();

    /// Ends it at once, whatever it does.
    void kill() const;
    /// Waits until it has ended, half a minute at most; STILL_ACTIVE where it has not.
    [[nodiscard]] DWORD exitCode() const;
    /// All that it has printed, its errors too.
    [[nodiscard]] std::string output() const;

private:
    std::filesystem::path printed_;
    HANDLE process_ = nullptr;
};

} // namespace tests
