#pragma once

#include "automation/Unmoved.h"
#include "automation/com/Ole.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace tests {

/// This program, when it is started as the other process of a test: it serves a Sample as a local server.
inline constexpr GUID serverClass{0x5d1a44f2, 0x07c2, 0x4d52, {0x9f, 0x0e, 0x3b, 0x61, 0x8a, 0x77, 0x15, 0xc4}};

/// Serves until the process is ended, where the command line asks for it: in the running-object table, or as a class
/// object where COM has started the process.
[[nodiscard]] std::optional<int> serveIfAsked(std::span<char*> arguments);

/// Makes this process refuse calls from others for a while.
void refuseCallsFor(std::int32_t milliseconds);

/// The server, started for the length of a scope, with its object in the running-object table.
class ServerProcess : automation::Unmoved {
public:
    ServerProcess();
    ~ServerProcess();

    void end();

private:
    HANDLE process_ = nullptr;
};

/// The command that starts the server.
[[nodiscard]] std::wstring serverCommand();

} // namespace tests
