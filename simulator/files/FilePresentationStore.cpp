#include "simulator/files/FilePresentationStore.h"

#include "automation/Text.h"
#include "simulator/files/DamagedPresentation.h"
#include "simulator/files/Outline.h"
#include "simulator/files/WholeFile.h"
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

/// Writes a file beside the one that it is to replace.
bool writeWhole(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

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
    const std::filesystem::path file = locate_(path);
    std::filesystem::path fresh = file;
    fresh += ".new";
    std::error_code failure;
    if (isReadOnly(path) || !writeWhole(fresh, bytes)) {
        cannotSave(path);
    }
    std::filesystem::rename(fresh, file, failure);
    if (failure) {
        std::filesystem::remove(fresh, failure);
        cannotSave(path);
    }
}

} // namespace simulator
