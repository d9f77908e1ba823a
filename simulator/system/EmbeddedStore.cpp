#include "simulator/system/EmbeddedStore.h"

#include "simulator/process/Errors.h"

namespace simulator {

void EmbeddedStore::save(const Presentation& presentation, std::u16string_view path) {
    demandWritable(path);
    inner_.save(presentation, path);
}

void EmbeddedStore::saveOutline(const Presentation& presentation, std::u16string_view path) {
    demandWritable(path);
    inner_.saveOutline(presentation, path);
}

void EmbeddedStore::savePicture(const std::string& picture, std::u16string_view path) {
    demandWritable(path);
    inner_.savePicture(picture, path);
}

bool EmbeddedStore::isReadOnly(std::u16string_view path) {
    return (files_.attributes(path) & EmbeddedFiles::readOnly) != 0 || inner_.isReadOnly(path);
}

void EmbeddedStore::demandWritable(std::u16string_view path) {
    if (isReadOnly(path)) {
        errors::invalidRequest(u"Presentation.SaveAs",
                               u"Le fichier « " + std::u16string(path) + u" » est en lecture seule.");
    }
}

} // namespace simulator
