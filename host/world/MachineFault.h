#pragma once

#include <exception>
#include <string>

namespace host {

/// The computer itself does not give what work needs: room on the disk, a folder for temporary files. No fault of a
/// scenario, and no wrong command line; in words for its user.
struct MachineFault : std::exception {
    explicit MachineFault(std::string text) : message(std::move(text)) {}
    [[nodiscard]] const char* what() const noexcept override { return message.c_str(); }

    std::string message;
};

} // namespace host
