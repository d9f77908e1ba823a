#include "simulator/files/FilePresentationStore.h"

#include "automation/Text.h"
#include "automation/Unmoved.h"
#include "simulator/files/Outline.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/bytes/DamagedPresentation.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "simulator/process/Errors.h"

#include <fstream>
#include <system_error>

namespace simulator {

namespace {

[[noreturn]] void cannotOpen(std::u16string_view path, std::u16string_view reason) {
    errors::invalidRequest(u"Presentations.Open : PowerPoint n'a pas pu ouvrir le fichier « " + std::u16string(path) +
                           u" » : " + std::u16string(reason));
}

[[noreturn]] void cannotSave(std::u16string_view path) {
    errors::invalidRequest(u"Presentation.Save : PowerPoint n'a pas pu enregistrer le fichier « " +
                           std::u16string(path) + u" ».");
}

/// A file beside the one that it is to replace; where it has not, it is gone at the end of the scope.
class FreshFile : automation::Unmoved {
public:
    explicit FreshFile(const std::filesystem::path& file) : old_(file), fresh_(file) { fresh_ += ".new"; }
    ~FreshFile() {
        std::error_code failure;
        std::filesystem::remove(fresh_, failure);
    }

    [[nodiscard]] bool write(const std::string& bytes) const {
        std::ofstream stream(fresh_, std::ios::binary | std::ios::trunc);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        return stream.good();
    }
    [[nodiscard]] bool replace() const {
        std::error_code failure;
        std::filesystem::rename(fresh_, old_, failure);
        return !failure;
    }

private:
    std::filesystem::path old_;
    std::filesystem::path fresh_;
};

} // namespace

PresentationPtr FilePresentationStore::load(std::u16string_view path) {
    const std::filesystem::path file = locate_(path);
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored)) {
        cannotOpen(path, u"fichier introuvable.");
    }
    const auto bytes = files::wholeFile(file);
    if (!bytes) {
        cannotOpen(path, u"lecture impossible.");
    }
    try {
        return powerpoint::readPresentation(*bytes);
    } catch (const DamagedPresentation& damage) {
        cannotOpen(path, u"le fichier est endommagé (" + automation::fromUtf8(damage.what()) + u").");
    }
}

void FilePresentationStore::save(const Presentation& presentation, std::u16string_view path) {
    write(powerpoint::writePresentation(presentation), path);
}

void FilePresentationStore::saveOutline(const Presentation& presentation, std::u16string_view path) {
    write(outlineAsRichText(presentation), path);
}

bool FilePresentationStore::isReadOnly(std::u16string_view path) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(locate_(path), failure);
    constexpr auto writable = std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                              std::filesystem::perms::others_write;
    return std::filesystem::is_regular_file(status) &&
           (status.permissions() & writable) == std::filesystem::perms::none;
}

void FilePresentationStore::write(const std::string& bytes, std::u16string_view path) {
    const FreshFile fresh(locate_(path));
    if (isReadOnly(path) || !fresh.write(bytes) || !fresh.replace()) {
        cannotSave(path);
    }
}

} // namespace simulator
