#pragma once

namespace host {}

/// Trials are made of the host's parts, and speak of them as their own.
namespace trials {
using namespace host;
} // namespace trials
