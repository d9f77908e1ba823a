#pragma once

#include "simulator/files/powerpoint/SlideList.h"
#include "simulator/files/powerpoint/WrittenDocument.h"

namespace simulator::powerpoint {

/// Writes the notes pages of a document's slides.
class NotesWriter {
public:
    explicit NotesWriter(WrittenDocument& document) noexcept : document_(document) {}

    /// Writes the notes page of a slide, which is this object, over the one that it was read from, or keeps a new one
    /// for `finish`. One that nobody has written on needs no record.
    void write(const Slide& slide, std::uint32_t object, bool isNewSlide);
    /// Writes the new pages and, where there was none, the master that they follow.
    void finish();

private:
    [[nodiscard]] SlideEntry writeNew(const Slide& slide, std::uint32_t object, std::uint32_t id);

    WrittenDocument& document_;
    std::vector<std::pair<const Slide*, std::uint32_t>> new_; ///< of slides, with the objects that these are
};

} // namespace simulator::powerpoint
