#pragma once

#include "simulator/files/PresentationFormat.h"
#include "simulator/process/Session.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace simulator {

/// Presentations in files of the real disk. Members raise PowerPoint's own error, which names the path, where a file
/// cannot be read or written.
class FilePresentationStore final : public PresentationStore {
public:
    /// Tells where a Windows path lies on the real disk.
    using Locate = std::function<std::filesystem::path(std::u16string_view)>;

    /// The format is PowerPoint's own where none is given.
    explicit FilePresentationStore(Locate locate, std::unique_ptr<const PresentationFormat> format = nullptr);

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
    std::unique_ptr<const PresentationFormat> format_;
};

} // namespace simulator
