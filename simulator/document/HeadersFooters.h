#pragma once

#include <cstdint>
#include <string>

namespace simulator {

/// A header, a footer, the date or the number of a sheet.
struct HeaderFooter {
    bool isVisible = false;
    std::u16string text; ///< of the date, the one that stays as it is; a number has none

    friend bool operator==(const HeaderFooter&, const HeaderFooter&) = default;
};

/// What stands at the edges of a sheet, or of all that follow a master.
struct HeadersFooters {
    HeaderFooter date;
    HeaderFooter number;
    HeaderFooter header; ///< of pages
    HeaderFooter footer;
    bool dateUsesFormat = true;  ///< the date is today's
    std::int32_t dateFormat = 1; ///< ppDateTimeMdyy

    friend bool operator==(const HeadersFooters&, const HeadersFooters&) = default;
};

} // namespace simulator
