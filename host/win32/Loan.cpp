#include "host/win32/Loan.h"

#include "host/win32/KeyRights.h"
#include "platform/win32/RegistryKey.h"

#include <array>
#include <stdexcept>

namespace host {

namespace fs = std::filesystem;

namespace {

using platform::checkRegistry;
using platform::RegistryKey;
using Fields = std::vector<std::wstring>;

constexpr wchar_t separator = L'\t';

// Numbers and bytes as text.

std::wstring hexOf(const std::vector<BYTE>& bytes) {
    constexpr std::wstring_view digits = L"0123456789abcdef";
    std::wstring text;
    for (const BYTE byte : bytes) {
        text += digits[byte / digits.size()];
        text += digits[byte % digits.size()];
    }
    return text;
}

std::vector<BYTE> bytesOf(std::wstring_view hex) {
    std::vector<BYTE> bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(static_cast<BYTE>(std::stoul(std::wstring(hex.substr(i, 2)), nullptr, 16)));
    }
    return bytes;
}

// Values of the registry: the part of it that a program of so many bits sees, root, key, name, the first key of the
// path that was missing, type and data; no type where the value was missing.

constexpr std::wstring_view ownBits = sizeof(void*) == 8 ? L"64" : L"32";

REGSAM viewOf(std::wstring_view bits) noexcept {
    return bits == L"64" ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
}

HKEY rootOf(std::wstring_view name) noexcept {
    return name == L"HKLM" ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

/// The first key of a path that is missing; empty where none is.
std::wstring firstMissing(HKEY root, const std::wstring& key) {
    if (RegistryKey::open(root, key, KEY_QUERY_VALUE)) {
        return {};
    }
    for (std::size_t end = key.find(L'\\');; end = key.find(L'\\', end + 1)) {
        std::wstring path = key.substr(0, end);
        if (!RegistryKey::open(root, path, KEY_QUERY_VALUE)) {
            return path;
        }
    }
}

/// The path of the key that a key stands in; empty for one that stands in none.
std::wstring above(const std::wstring& key) {
    const std::size_t end = key.rfind(L'\\');
    return key.substr(0, end == std::wstring::npos ? 0 : end);
}

void giveBackValue(const Fields& fields, const Clearing& /*ofFiles*/) {
    const REGSAM view = viewOf(fields.at(1));
    const HKEY root = rootOf(fields.at(2));
    const std::wstring& key = fields.at(3);
    const std::wstring& name = fields.at(4);
    const std::wstring& missing = fields.at(5);
    const std::wstring& type = fields.at(6);
    if (!type.empty()) {
        const std::vector<BYTE> data = bytesOf(fields.at(7));
        const auto opened = RegistryKey::create(root, key, KEY_SET_VALUE | view);
        checkRegistry(RegSetValueExW(opened.get(), name.c_str(), 0, std::stoul(type), data.data(),
                                     static_cast<DWORD>(data.size())));
    } else if (const auto opened = RegistryKey::open(root, key, KEY_SET_VALUE | view)) {
        opened.deleteValue(name);
    }
    if (!missing.empty()) {
        RegistryKey::removeBare(root, key, above(missing), view);
    }
}

/// Rights on a key: its path and the security descriptor.
void giveBackRights(const Fields& fields, const Clearing& /*ofFiles*/) {
    if (const auto opened = RegistryKey::open(HKEY_CURRENT_USER, fields.at(1), WRITE_DAC)) {
        setRights(opened.get(), bytesOf(fields.at(2)));
    }
}

void giveBackFolder(const Fields& fields, const Clearing& clearing) {
    const fs::path folder(fields.at(1));
    const fs::path aside(fields.at(2));
    if (aside == folder) {
        clearing.empty(folder);
    } else if (aside.empty()) {
        clearing.vacate(folder);
    } else if (fs::exists(aside)) {
        clearing.vacate(folder);
        fs::rename(aside, folder);
    }
}

void giveBackNothing(const Fields& fields, const Clearing& clearing) {
    clearing.vacate(fields.at(1));
}

struct Kind {
    std::wstring_view name;
    void (*giveBack)(const Fields&, const Clearing&);
};

constexpr std::array<Kind, 4> kinds{{{L"value", &giveBackValue},
                                     {L"rights", &giveBackRights},
                                     {L"folder", &giveBackFolder},
                                     {L"new", &giveBackNothing}}};

} // namespace

Loan Loan::ofValue(HKEY root, const std::wstring& key, const std::wstring& name) {
    Fields fields{L"value",
                  std::wstring(ownBits),
                  root == HKEY_LOCAL_MACHINE ? L"HKLM" : L"HKCU",
                  key,
                  name,
                  firstMissing(root, key),
                  L"",
                  L""};
    const auto opened = RegistryKey::open(root, key, KEY_QUERY_VALUE);
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (opened && RegQueryValueExW(opened.get(), name.c_str(), nullptr, &type, nullptr, &size) == ERROR_SUCCESS) {
        std::vector<BYTE> data(size);
        checkRegistry(RegQueryValueExW(opened.get(), name.c_str(), nullptr, nullptr, data.data(), &size));
        fields[6] = std::to_wstring(type);
        fields[7] = hexOf(data);
    }
    return Loan(std::move(fields));
}

Loan Loan::ofRights(const std::wstring& key, const std::vector<BYTE>& rights) {
    return Loan({L"rights", key, hexOf(rights)});
}

Loan Loan::ofFolder(const fs::path& folder, const fs::path& aside) {
    return Loan({L"folder", folder.wstring(), aside.wstring()});
}

Loan Loan::ofNothing(const fs::path& path) {
    return Loan({L"new", path.wstring()});
}

Loan Loan::read(std::wstring_view line) {
    Fields fields;
    for (std::size_t end = line.find(separator); end != std::wstring_view::npos; end = line.find(separator)) {
        fields.emplace_back(line.substr(0, end));
        line.remove_prefix(end + 1);
    }
    fields.emplace_back(line);
    return Loan(std::move(fields));
}

std::wstring Loan::line() const {
    std::wstring text;
    for (const std::wstring& field : fields_) {
        text += (text.empty() ? L"" : std::wstring(1, separator)) + field;
    }
    return text;
}

void Loan::giveBack(const Clearing& clearing) const {
    for (const Kind& kind : kinds) {
        if (kind.name == fields_.front()) {
            return kind.giveBack(fields_, clearing);
        }
    }
    throw std::runtime_error("a line of the journal that nobody has written");
}

} // namespace host
