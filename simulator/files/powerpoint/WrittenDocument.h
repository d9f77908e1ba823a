#pragma once

#include "simulator/files/drawing/DrawingGroup.h"
#include "simulator/files/powerpoint/Origins.h"
#include "simulator/files/powerpoint/SlideWriter.h"
#include "simulator/files/text/FontTable.h"

#include <map>

namespace simulator::powerpoint {

/// A document on its way to a file: what it was read from, with what has been written over it so far.
class WrittenDocument {
public:
    /// The presentation must outlive it. One that comes from no file is written over a blank one.
    explicit WrittenDocument(const Presentation& presentation);

    [[nodiscard]] const Presentation& presentation() const noexcept { return presentation_; }
    [[nodiscard]] const PresentationOrigin& origin() const noexcept { return *origin_; }
    /// Whether the presentation comes from no file.
    [[nodiscard]] bool isBlank() const noexcept;
    /// What this document says of a sheet; null where it comes from elsewhere.
    [[nodiscard]] const SlideOrigin* originIn(const Slide& sheet) const noexcept;

    [[nodiscard]] PersistObjects& objects() noexcept { return objects_; }
    /// The record of the document itself.
    [[nodiscard]] records::Record& record() { return *objects_.find(origin_->document); }
    /// Puts an object behind the others and answers with its number.
    std::uint32_t append(records::Record record);

    /// Writes a sheet over what it was read from, `origin`; null for a new one.
    [[nodiscard]] WrittenSlide writeSheet(const Slide& sheet, const SlideOrigin* origin, bool isCopy = false);
    /// Says by which id sheets name a master.
    void setMasterId(const Slide& master, std::uint32_t id) { masters_.emplace(&master, id); }
    /// The id of the master of new slides that name none.
    void setFirstMasterId(std::uint32_t id) noexcept { firstMaster_ = id; }

    /// Writes the fonts that texts have named, and how many drawings and shapes there are.
    void writeTotals();

private:
    [[nodiscard]] records::Record& listOfDrawings();
    [[nodiscard]] records::Record* fontCollection();
    void writeFonts();

    const Presentation& presentation_;
    std::shared_ptr<const PresentationOrigin> origin_;
    PersistObjects objects_;
    drawing::DrawingGroup drawings_;
    text::FontTable fonts_;
    std::map<const Slide*, std::uint32_t> masters_; ///< ids of slide masters and title masters
    std::uint32_t firstMaster_ = 0;
};

} // namespace simulator::powerpoint
