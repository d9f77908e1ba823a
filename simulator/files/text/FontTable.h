#pragma once

#include "simulator/files/records/Record.h"

namespace simulator::text {

/// The fonts of a document, by their numbers.
class FontTable {
public:
    FontTable() = default;
    explicit FontTable(const records::Record& collection);

    /// The name of a font; null where there is none of this number.
    [[nodiscard]] const std::u16string* name(std::uint32_t number) const noexcept;
    /// The number of a font, which is added where it is not there.
    [[nodiscard]] std::uint16_t number(const std::u16string& name);
    /// Adds the fonts that a collection lacks.
    void complete(records::Record& collection) const;

private:
    std::vector<std::u16string> names_; ///< empty for a number that is not taken
};

} // namespace simulator::text
