#include "host/report/Gallery.h"

#include <algorithm>
#include <cmath>

namespace host::report {

namespace {

using simulator::picture::Markup;

constexpr std::string_view opening = "<svg ";

std::string nameOf(std::size_t place) {
    return "slide" + std::to_string(place);
}

std::string base64(std::string_view bytes) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t group = 0;
        for (std::size_t j = i; j < i + 3; ++j) {
            group = group << 8U | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
        }
        for (std::size_t j = 0; j < 4; ++j) {
            text += i + j <= bytes.size() ? digits[group >> (18U - 6U * j) & 63U] : '=';
        }
    }
    return text;
}

/// A picture as SVG that can stand within a page.
std::string asSvg(const Picture& picture) {
    if (picture.bytes.starts_with(opening)) {
        return picture.bytes.substr(0, picture.bytes.find_last_of('>') + 1);
    }
    return R"(<svg viewBox="0 0 720 540"><image width="720" height="540" href="data:image/)" + picture.extension +
           ";base64," + base64(picture.bytes) + R"("/></svg>)";
}

/// Marks stand at the left upper corner of their shapes, below one another where two would meet; groups have a frame.
void showLabels(const std::vector<Label>& labels, Markup& page) {
    using simulator::picture::number;
    constexpr float height = 26;
    constexpr float width = 84;
    constexpr float right = 720 - width;
    constexpr float bottom = 540;
    std::vector<std::pair<float, float>> taken;
    for (const Label& label : labels) {
        if (label.isGroup) {
            page.leaf("rect", {{"class", "group"},
                               {"x", number(label.left)},
                               {"y", number(label.top)},
                               {"width", number(label.width)},
                               {"height", number(label.height)}});
        }
        const float x = std::clamp(label.left, 0.0F, right);
        float y = std::clamp(label.top, 0.0F, bottom - height) + height;
        for (const auto& [otherX, otherY] : taken) {
            y = std::abs(otherX - x) < width && std::abs(otherY - y) < height ? otherY + height : y;
        }
        taken.emplace_back(x, y);
        page.leaf("text", {{"class", "mark"}, {"x", number(x + 4)}, {"y", number(y - 4)}},
                  label.mark.empty() ? "group" : label.mark);
    }
}

/// What stands between quotation marks behind a word; empty where the word is not there.
std::string quotedAfter(std::string_view word, std::string_view text) {
    const std::size_t start = text.find(word);
    if (start == std::string_view::npos) {
        return {};
    }
    const std::size_t first = start + word.size();
    return std::string(text.substr(first, text.find('"', first) - first));
}

} // namespace

void Gallery::show(const Picture& picture, const std::string& words, Markup& page) {
    const std::string svg = asSvg(picture);
    const std::size_t place = places_.emplace(svg, places_.size()).first->second;
    const Markup::Element frame =
        page.element("svg", {{"viewBox", quotedAfter("viewBox=\"", svg)}, {"role", "img"}, {"aria-label", words}});
    page.leaf("use", {{"href", "#" + nameOf(place)}, {"width", "100%"}, {"height", "100%"}});
    showLabels(picture.labels, page);
}

void Gallery::write(Markup& page) const {
    if (places_.empty()) {
        return;
    }
    const Markup::Element hidden = page.element("svg", {{"class", "gallery"}, {"aria-hidden", "true"}});
    for (const auto& [svg, place] : places_) {
        page.raw("\n" + std::string(opening) + "id=\"" + nameOf(place) + "\" " + svg.substr(opening.size()));
    }
}

} // namespace host::report
