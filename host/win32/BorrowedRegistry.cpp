#include "host/win32/BorrowedRegistry.h"

#include "automation/com/ComError.h"

#include <algorithm>

namespace host {

namespace {

void require(LSTATUS status) {
    automation::com::check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

/// A registry key for the length of a scope; null where it could not be opened.
class Key {
public:
    Key(HKEY root, const std::wstring& path, REGSAM access) noexcept {
        if (RegOpenKeyExW(root, path.c_str(), 0, access, &key_) != ERROR_SUCCESS) {
            key_ = nullptr;
        }
    }
    ~Key() {
        if (key_ != nullptr) {
            RegCloseKey(key_);
        }
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    Key(Key&&) = delete;
    Key& operator=(Key&&) = delete;

    [[nodiscard]] HKEY get() const noexcept { return key_; }
    [[nodiscard]] explicit operator bool() const noexcept { return key_ != nullptr; }

private:
    HKEY key_ = nullptr;
};

/// The raw content of a value; nothing where it is missing.
template <typename Data> std::optional<Data> dataIn(HKEY key, const std::wstring& name) {
    Data data;
    DWORD size = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, &data.type, nullptr, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    data.bytes.resize(size);
    RegQueryValueExW(key, name.c_str(), nullptr, nullptr, data.bytes.data(), &size);
    return data;
}

struct Raw {
    DWORD type = REG_NONE;
    std::vector<BYTE> bytes;
};

std::wstring textIn(HKEY key, const std::wstring& name) {
    const auto data = dataIn<Raw>(key, name);
    if (!data) {
        return {};
    }
    std::wstring text(reinterpret_cast<const wchar_t*>(data->bytes.data()), data->bytes.size() / sizeof(wchar_t));
    text.resize(std::min(text.find(L'\0'), text.size()));
    return text;
}

} // namespace

BorrowedRegistry::~BorrowedRegistry() {
    for (const auto& [name, denied] : denied_) {
        allow(denied);
    }
    std::for_each(former_.rbegin(), former_.rend(), restore);
}

std::wstring BorrowedRegistry::text(const std::wstring& key, const std::wstring& name) const {
    if (const auto found = denied_.find(key); found != denied_.end()) {
        return textIn(found->second.key, name);
    }
    const Key opened(HKEY_CURRENT_USER, key, KEY_QUERY_VALUE);
    return opened ? textIn(opened.get(), name) : std::wstring();
}

void BorrowedRegistry::setText(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    remember(root, key, name);
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    require(RegSetKeyValueW(root, key.c_str(), name.c_str(), REG_SZ, text.c_str(), bytes));
}

void BorrowedRegistry::remove(HKEY root, const std::wstring& key, const std::wstring& name) {
    remember(root, key, name);
    const Key opened(root, key, KEY_SET_VALUE);
    RegDeleteValueW(opened.get(), name.c_str());
}

void BorrowedRegistry::remember(HKEY root, const std::wstring& key, const std::wstring& name) {
    const auto isNoted = [&](const Former& each) { return each.root == root && each.key == key && each.name == name; };
    if (std::any_of(former_.begin(), former_.end(), isNoted)) {
        return;
    }
    const Key opened(root, key, KEY_QUERY_VALUE);
    former_.push_back({root, key, name, opened ? dataIn<Data>(opened.get(), name) : std::nullopt, bool(opened)});
}

void BorrowedRegistry::deny(const std::wstring& key, bool denied) {
    if (const auto found = denied_.find(key); found != denied_.end()) {
        if (!denied) {
            allow(found->second);
            denied_.erase(found);
        }
        return;
    }
    if (!denied) {
        return;
    }
    Denied one{};
    require(RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_QUERY_VALUE | READ_CONTROL | WRITE_DAC, &one.key));
    DWORD size = 0;
    RegGetKeySecurity(one.key, DACL_SECURITY_INFORMATION, nullptr, &size);
    one.security.resize(size);
    require(RegGetKeySecurity(one.key, DACL_SECURITY_INFORMATION, one.security.data(), &size));
    // An access control list without entries grants nothing to anyone.
    ACL nobody{};
    SECURITY_DESCRIPTOR closed{};
    InitializeAcl(&nobody, sizeof(nobody), ACL_REVISION);
    InitializeSecurityDescriptor(&closed, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&closed, TRUE, &nobody, FALSE);
    require(RegSetKeySecurity(one.key, DACL_SECURITY_INFORMATION, &closed));
    denied_.emplace(key, std::move(one));
}

void BorrowedRegistry::allow(const Denied& denied) const {
    RegSetKeySecurity(denied.key, DACL_SECURITY_INFORMATION, const_cast<BYTE*>(denied.security.data()));
    RegCloseKey(denied.key);
}

void BorrowedRegistry::restore(const Former& former) {
    if (former.data) {
        RegSetKeyValueW(former.root, former.key.c_str(), former.name.c_str(), former.data->type,
                        former.data->bytes.data(), static_cast<DWORD>(former.data->bytes.size()));
        return;
    }
    {
        const Key opened(former.root, former.key, KEY_SET_VALUE);
        RegDeleteValueW(opened.get(), former.name.c_str());
    }
    if (!former.hadKey) {
        RegDeleteKeyW(former.root, former.key.c_str());
    }
}

} // namespace host
