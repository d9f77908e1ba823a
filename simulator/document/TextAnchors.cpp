#include "simulator/document/TextAnchors.h"

#include <algorithm>

namespace simulator {

TextAnchors& TextAnchors::operator=(const TextAnchors& original) noexcept {
    if (this != &original) {
        anchors_.clear();
    }
    return *this;
}

std::shared_ptr<TextAnchor> TextAnchors::add(Span span, const CharacterFormat& format) {
    std::erase_if(anchors_, [](const std::weak_ptr<TextAnchor>& each) { return each.expired(); });
    auto anchor = std::make_shared<TextAnchor>(TextAnchor{span, format});
    anchors_.push_back(anchor);
    return anchor;
}

Span TextAnchors::moved(Span span, Span replaced, std::size_t length) noexcept {
    if (replaced.end() <= span.start) {
        return {span.start + length - replaced.length, span.length};
    }
    if (replaced.start >= span.end()) {
        return span;
    }
    if (replaced.start > span.start && replaced.end() < span.end()) {
        return {span.start, span.length + length - replaced.length};
    }
    if (replaced.start > span.start) {
        return {span.start, replaced.start - span.start};
    }
    const std::size_t left = span.end() - std::min(span.end(), replaced.end());
    return {replaced.start + length, left};
}

} // namespace simulator
