#pragma once

#include "simulator/process/Process.h"

#include <filesystem>
#include <functional>

namespace simulator {

/// Presentations in files of the real disk. Members raise PowerPoint's own error, which names the path, where a file
/// cannot be read or written.
class FilePresentationStore final : public PresentationStore {
public:
    /// Tells where a Windows path lies on the real disk.
    using Locate = std::function<std::filesystem::path(std::u16string_view)>;

    explicit FilePresentationStore(Locate locate) : locate_(std::move(locate)) {}

    [[nodiscard]] PresentationPtr load(std::u16string_view path) override;
    /// A file that was there stays as it was where saving fails.
    void save(const Presentation& presentation, std::u16string_view path) override;
    void saveOutline(const Presentation& presentation, std::u16string_view path) override;
    void savePicture(const std::string& picture, std::u16string_view path) override { write(picture, path); }
    /// False for a file that does not exist.
    [[nodiscard]] bool isReadOnly(std::u16string_view path) override;

private:
    void write(const std::string& bytes, std::u16string_view path);

    Locate locate_;
};

} // namespace simulator
