#pragma once

#include <filesystem>
#include <functional>
#include <vector>

namespace host {

/// Does work, and does it again whenever one of the files has been saved, until the program is ended.
[[noreturn]] void onEverySaving(const std::vector<std::filesystem::path>& files, const std::function<void()>& work);

} // namespace host
