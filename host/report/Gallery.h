#pragma once

#include "host/picture/Exposure.h"
#include "simulator/picture/Markup.h"

#include <map>

namespace host::report {

/// The pictures of a page: each stands in it once, however many times it is shown.
class Gallery {
public:
    /// Shows a picture at this place of the page, with words for those who do not see it.
    void show(const Picture& picture, const std::string& words, simulator::picture::Markup& page);
    /// Writes the pictures shown, in a place that is not seen.
    void write(simulator::picture::Markup& page) const;

private:
    std::map<std::string, std::size_t> places_; ///< by what the pictures are in SVG
};

} // namespace host::report
