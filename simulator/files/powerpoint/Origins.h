#pragma once

#include "simulator/document/Presentation.h"
#include "simulator/files/compound/Storage.h"
#include "simulator/files/records/Record.h"

namespace simulator::powerpoint {

/// A part of a document that can be saved by itself: the document, a master, a slide, its notes.
struct PersistObject {
    std::uint32_t id = 0;
    records::Record record;
};

/// What a file says of a presentation.
class PresentationOrigin final : public Origin {
public:
    compound::Storage file; ///< without what stands in its two streams
    records::Record currentUser;
    records::Record userEdit;
    std::vector<PersistObject> objects; ///< in the order of the stream
    std::uint32_t document = 0;         ///< number of the object that is the document

    bool snapToGrid = true; ///< as read, as all that follows
    float slideWidth = 0;
    float slideHeight = 0;
    ColorScheme colors;
    TagList tags;

    /// Null where there is none.
    [[nodiscard]] const records::Record* object(std::uint32_t id) const noexcept {
        for (const PersistObject& each : objects) {
            if (each.id == id) {
                return &each.record;
            }
        }
        return nullptr;
    }
};

/// A slide's entry in the list of slides, with its outline.
struct SlideEntry {
    records::Record persist;
    std::vector<records::Record> rest; ///< what stands before the first text
    std::vector<std::vector<records::Record>> texts;
};

/// What a file says of a slide.
class SlideOrigin final : public Origin {
public:
    OriginPtr document;
    std::uint32_t object = 0;
    std::uint32_t drawing = 0;
    SlideEntry entry;

    PpSlideLayout layout = ppLayoutBlank; ///< as read, as all that follows
    std::u16string name;
    TagList tags;
    std::size_t shapes = 0; ///< with those in groups
};

/// Number of shapes with groups and all that is in them.
[[nodiscard]] std::size_t countShapes(const std::vector<ShapePtr>& shapes) noexcept;

/// The entries of a list of slides.
[[nodiscard]] std::vector<SlideEntry> entriesOf(const records::Record& list);
/// The list's children again.
[[nodiscard]] std::vector<records::Record> recordsOf(const std::vector<SlideEntry>& entries);

/// What stands in the record of a slide in a list.
struct SlideReference {
    explicit SlideReference(const records::Record& persist);

    std::uint32_t object = 0;
    std::uint32_t slide = 0;
};

} // namespace simulator::powerpoint
