#pragma once

#include "simulator/process/Process.h"
#include "simulator/system/EmbeddedFiles.h"

namespace simulator {

/// A presentation store that heeds the attributes of the files of a computer in memory, which the store that reads and
/// writes them does not know.
class EmbeddedStore final : public PresentationStore {
public:
    /// Both must outlive this object.
    EmbeddedStore(PresentationStore& inner, const EmbeddedFiles& files) noexcept : inner_(inner), files_(files) {}

    [[nodiscard]] PresentationPtr load(std::u16string_view path) override { return inner_.load(path); }
    /// Raises an invalid request for a read-only file.
    void save(const Presentation& presentation, std::u16string_view path) override;
    void saveOutline(const Presentation& presentation, std::u16string_view path) override;
    void savePicture(const std::string& picture, std::u16string_view path) override;
    [[nodiscard]] bool isReadOnly(std::u16string_view path) override;

private:
    void demandWritable(std::u16string_view path);

    PresentationStore& inner_;
    const EmbeddedFiles& files_;
};

} // namespace simulator
