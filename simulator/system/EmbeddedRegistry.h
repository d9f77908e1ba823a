#pragma once

#include "platform/Registry.h"

#include <map>
#include <optional>
#include <vector>

namespace simulator {

/// A current user's registry in memory. Key and value names are compared without case; a value keeps its characters as
/// they were set, with or without a terminating NUL.
class EmbeddedRegistry final : public platform::Registry {
public:
    static constexpr Status invalidHandle = 6;

    Status create(std::u16string_view path, Key& key) override;
    Status open(std::u16string_view path, std::uint32_t access, Key& key) override;
    Status enumerate(Key key, std::uint32_t index, std::size_t bufferLength, std::u16string& name) override;
    Status query(Key key, std::u16string_view name, std::size_t& length, std::u16string& data) override;
    Status set(Key key, std::u16string_view name, std::u16string_view data, std::size_t length) override;
    void close(Key key) override;

    /// A value without its terminating NUL; nothing where it is missing.
    [[nodiscard]] std::optional<std::u16string> text(std::u16string_view path, std::u16string_view name) const;
    /// Writes a value with its terminating NUL, and the key where it is missing, whether access is denied or not.
    void setText(std::u16string_view path, std::u16string_view name, std::u16string_view text);
    void remove(std::u16string_view path, std::u16string_view name);
    /// Makes a key impossible to open, or possible again.
    void deny(std::u16string_view path, bool denied);
    /// Number of key handles not closed yet.
    [[nodiscard]] std::size_t openHandles() const noexcept { return handles_.size(); }

private:
    struct Value {
        std::u16string name;
        std::u16string data;
    };
    struct Content {
        std::vector<Value> values;
        bool denied = false;
    };
    struct Handle {
        std::u16string path;
        std::uint32_t access;
    };

    /// Makes a key and those above it.
    Content& make(std::u16string_view path);
    Status give(std::u16string_view path, std::uint32_t access, Key& key);
    /// The key behind a handle; a null one together with the status to answer where the handle does not allow the
    /// access.
    Content* reach(Key key, std::uint32_t access, Status& status);

    std::map<std::u16string, Content> keys_; ///< by path in lower case
    std::map<Key, Handle> handles_;
    std::uintptr_t lastHandle_ = 0x80;
};

} // namespace simulator
