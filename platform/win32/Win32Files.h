#pragma once

#include "platform/FileSystem.h"

namespace platform {

/// The files of the machine.
class Win32Files final : public FileSystem {
public:
    void clearAttributes(std::u16string_view path) override;
    void rename(std::u16string_view from, std::u16string_view to) override;
    void remove(std::u16string_view path) override;
    std::u16string find(std::u16string_view pattern, std::uint32_t attributes) override;
    bool makeDirectories(std::u16string_view path) override;
};

} // namespace platform
