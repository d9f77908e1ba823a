#include "host/win32/Loan.h"

#include "platform/win32/RegistryKey.h"

#include <array>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace host {

namespace fs = std::filesystem;

namespace {

using namespace std::chrono_literals;
using platform::checkRegistry;
using platform::RegistryKey;
using Fields = std::vector<std::wstring>;

constexpr wchar_t separator = L'\t';

/// A PowerPoint that is going holds its files a little longer.
constexpr auto patience = 3000ms;
constexpr auto step = 20ms;

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

/// Deletes a key and those above it down to a first one, as far as nothing is left in them.
void removeBare(HKEY root, std::wstring key, const std::wstring& first, REGSAM view) {
    while (!key.empty() && key.size() >= first.size()) {
        if (const auto opened = RegistryKey::open(root, key, KEY_QUERY_VALUE | view); !opened || !opened.isBare()) {
            return;
        }
        checkRegistry(RegDeleteKeyExW(root, key.c_str(), view, 0));
        const std::size_t end = key.rfind(L'\\');
        key.resize(end == std::wstring::npos ? 0 : end);
    }
}

void giveBackValue(const Fields& fields) {
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
        removeBare(root, key, missing, view);
    }
}

/// Rights on a key: its path and the security descriptor. Whoever owns a key may always change them.
void giveBackRights(const Fields& fields) {
    std::vector<BYTE> rights = bytesOf(fields.at(2));
    if (const auto opened = RegistryKey::open(HKEY_CURRENT_USER, fields.at(1), WRITE_DAC)) {
        checkRegistry(RegSetKeySecurity(opened.get(), DACL_SECURITY_INFORMATION, rights.data()));
    }
}

void makeNormal(const fs::path& path) noexcept {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

/// Removes read-only files, too. Raises where something is still held open when patience is over.
void removeAll(const fs::path& path) {
    const auto end = std::chrono::steady_clock::now() + patience;
    std::error_code failure;
    do {
        makeNormal(path);
        for (const auto& entry : fs::recursive_directory_iterator(path, failure)) {
            makeNormal(entry.path());
        }
        fs::remove_all(path, failure);
        if (!fs::exists(path)) {
            return;
        }
        std::this_thread::sleep_for(step);
    } while (std::chrono::steady_clock::now() < end);
    throw fs::filesystem_error("it cannot be removed", path, failure);
}

void giveBackFolder(const Fields& fields) {
    const fs::path folder(fields.at(1));
    const fs::path aside(fields.at(2));
    if (aside == folder) {
        for (const auto& entry : fs::directory_iterator(folder)) {
            removeAll(entry.path());
        }
    } else if (aside.empty()) {
        removeAll(folder);
    } else if (fs::exists(aside)) {
        removeAll(folder);
        fs::rename(aside, folder);
    }
}

void giveBackNothing(const Fields& fields) {
    removeAll(fields.at(1));
}

struct Kind {
    std::wstring_view name;
    void (*giveBack)(const Fields&);
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

void Loan::giveBack() const {
    for (const Kind& kind : kinds) {
        if (kind.name == fields_.front()) {
            return kind.giveBack(fields_);
        }
    }
    throw std::runtime_error("a line of the journal that nobody has written");
}

} // namespace host
