#pragma once

#include "host/win32/Clearing.h"

#include <windows.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// One thing of this machine that is changed for a while, as it was before.
class Loan {
public:
    /// A value of the registry, as it is now. Raises the system's error where it cannot be read.
    [[nodiscard]] static Loan ofValue(HKEY root, const std::wstring& key, const std::wstring& name);
    /// The rights on a key of the current user's.
    [[nodiscard]] static Loan ofRights(const std::wstring& key, const std::vector<BYTE>& rights);
    /// A folder that others use instead. What was there goes to `aside`: nowhere where there was none, and to itself
    /// where it was empty.
    [[nodiscard]] static Loan ofFolder(const std::filesystem::path& folder, const std::filesystem::path& aside);
    /// A file or folder that was not there.
    [[nodiscard]] static Loan ofNothing(const std::filesystem::path& path);

    /// What `line` gave.
    [[nodiscard]] static Loan read(std::wstring_view line);
    /// All of it in one line.
    [[nodiscard]] std::wstring line() const;

    /// Puts it back for the run that borrowed it: what others have put in its place goes. Doing so twice does no harm.
    /// Raises where that fails.
    void giveBack() const { giveBack(removing); }
    /// Puts it back for a run that was cut short, maybe long ago: what stands in its place is the user's by now, and is
    /// kept. Raises where that fails.
    void recover() const { giveBack(keeping); }

private:
    using Fields = std::vector<std::wstring>;

    explicit Loan(Fields fields) : fields_(std::move(fields)) {}

    void giveBack(const Clearing& clearing) const;

    Fields fields_; ///< its kind, and what that needs
};

} // namespace host
