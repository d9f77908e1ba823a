#pragma once

#include "automation/Unmoved.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The current user's registry (HKEY_CURRENT_USER). Keys are named by their path below it; names are compared without
/// case. No call raises: every one answers with the system's status.
class Registry {
public:
    enum class Key : std::uintptr_t { None = 0 };
    using Status = std::int32_t;

    static constexpr Status success = 0;
    static constexpr Status fileNotFound = 2;
    static constexpr Status accessDenied = 5;
    static constexpr Status moreData = 234;
    static constexpr Status noMoreItems = 259;

    static constexpr std::uint32_t queryAndSet = 3;    ///< KEY_QUERY_VALUE and KEY_SET_VALUE
    static constexpr std::uint32_t read = 0x00020019U; ///< KEY_READ

    virtual ~Registry() = default;

    /// Opens a key, creating it where it is missing.
    virtual Status create(std::u16string_view path, Key& key) = 0;
    virtual Status open(std::u16string_view path, std::uint32_t access, Key& key) = 0;
    /// Name of the value at an index from 0; `noMoreItems` past the last.
    virtual Status enumerate(Key key, std::uint32_t index, std::size_t bufferLength, std::u16string& name) = 0;
    /// Data of a string value as it is stored, terminating NUL included where it has one. Where it is longer than
    /// `length` characters: `moreData`, with `length` set to what is needed.
    virtual Status query(Key key, std::u16string_view name, std::size_t& length, std::u16string& data) = 0;
    /// Writes the first `length` characters of a buffer that holds `data` and a terminating NUL as a string value
    /// (REG_SZ). The system stores the NUL where `length` counts it, and where it follows the last character written.
    virtual Status set(Key key, std::u16string_view name, std::u16string_view data, std::size_t length) = 0;
    virtual void close(Key key) = 0;
};

/// A registry key for the length of a scope.
class OpenKey : automation::Unmoved {
public:
    OpenKey(Registry& registry, std::u16string_view path, std::uint32_t access)
        : registry_(registry), status_(registry.open(path, access, key_)) {}
    ~OpenKey() {
        if (isOpen()) {
            registry_.close(key_);
        }
    }

    [[nodiscard]] bool isOpen() const noexcept { return status_ == Registry::success; }

    /// Name of the value at an index from 0. False past the last.
    bool enumerate(std::uint32_t index, std::u16string& name) const {
        return registry_.enumerate(key_, index, nameBuffer, name) == Registry::success;
    }
    /// Data of a string value as it is stored; read again whole where it is longer than the usual buffer.
    [[nodiscard]] Registry::Status query(std::u16string_view name, std::u16string& data) const {
        std::size_t length = valueBuffer;
        const Registry::Status status = registry_.query(key_, name, length, data);
        return status == Registry::moreData ? registry_.query(key_, name, length, data) : status;
    }
    /// The same; nothing where the value is missing or cannot be read.
    [[nodiscard]] std::optional<std::u16string> query(std::u16string_view name) const {
        std::u16string data;
        return query(name, data) == Registry::success ? std::optional(data) : std::nullopt;
    }
    bool set(std::u16string_view name, std::u16string_view data, std::size_t length) const {
        return registry_.set(key_, name, data, length) == Registry::success;
    }

private:
    static constexpr std::size_t nameBuffer = 2000;
    static constexpr std::size_t valueBuffer = 255;

    Registry& registry_;
    Registry::Key key_ = Registry::Key::None;
    Registry::Status status_;
};

} // namespace platform
