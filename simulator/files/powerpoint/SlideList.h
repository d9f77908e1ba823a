#pragma once

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/Record.h"

/// The lists of a document's slides, masters and notes, with the outline of each slide.
namespace simulator::powerpoint {

/// Which list: its instance among the document's records.
namespace slideList {
inline constexpr std::uint16_t slides = 0;
inline constexpr std::uint16_t masters = 1;
inline constexpr std::uint16_t notes = 2;
} // namespace slideList

/// Among the flags of an entry: there is more on the sheet than the outline has.
inline constexpr std::uint32_t notOutlineAlone = 4;

/// The record that stands for a slide in its list: its object, flags, number of texts and id.
[[nodiscard]] records::Record persistAtom(std::uint32_t object, std::uint32_t flags, std::uint32_t slide);

/// An entry of a list: a slide, a master or notes.
struct SlideEntry {
    records::Record persist;
    std::vector<records::Record> rest; ///< what stands before the first text
    std::vector<std::vector<records::Record>> texts;

    /// Number of the object that it is.
    [[nodiscard]] std::uint32_t object() const { return files::numberAt(persist.data, objectPlace); }
    /// Its id, by which others refer to it.
    [[nodiscard]] std::uint32_t id() const { return files::numberAt(persist.data, idPlace); }
    void setId(std::uint32_t id) noexcept { files::putNumber(persist.data, idPlace, id); }
    /// Gives it these texts, and says how many they are where that has changed.
    void setTexts(std::vector<std::vector<records::Record>> now);

    static constexpr std::size_t objectPlace = 0;
    static constexpr std::size_t textCountPlace = 8;
    static constexpr std::size_t idPlace = 12;
};

/// The entries of one of a document's lists, none where the list is not there. Raises DamagedPresentation.
[[nodiscard]] std::vector<SlideEntry> entriesIn(const records::Record& document, std::uint16_t list);
/// Gives a document's list these entries; one without any goes.
void putEntries(records::Record& document, std::uint16_t list, const std::vector<SlideEntry>& entries);

} // namespace simulator::powerpoint
