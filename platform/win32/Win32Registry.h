#pragma once

#include "platform/Registry.h"

namespace platform {

/// The current user's registry of the system.
class Win32Registry final : public Registry {
public:
    Status create(std::u16string_view path, Key& key) override;
    Status open(std::u16string_view path, std::uint32_t access, Key& key) override;
    Status enumerate(Key key, std::uint32_t index, std::size_t bufferLength, std::u16string& name) override;
    /// A value that is no text answers `unsupportedType`.
    Status query(Key key, std::u16string_view name, std::size_t& length, std::u16string& data) override;
    Status set(Key key, std::u16string_view name, std::u16string_view data, std::size_t length) override;
    void close(Key key) override;

    static constexpr Status unsupportedType = 1630;
};

} // namespace platform
