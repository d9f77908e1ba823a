#pragma once

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

    /// Puts it back; doing so twice does no harm. Raises where that fails.
    void giveBack() const;

private:
    using Fields = std::vector<std::wstring>;

    explicit Loan(Fields fields) : fields_(std::move(fields)) {}

    Fields fields_; ///< its kind, and what that needs
};

} // namespace host
