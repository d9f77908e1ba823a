#pragma once

#include "ppt/Facade.h"

namespace ppt {

class ColorFormat : public Facade<u"ColorFormat"> {
public:
    using Facade::Facade;
    /// Red in the low byte.
    [[nodiscard]] std::int32_t RGB() const { return get<u"RGB">().to<std::int32_t>(); }
};

class Font : public Facade<u"Font"> {
public:
    using Facade::Facade;
    [[nodiscard]] ColorFormat Color() const { return ColorFormat(get<u"Color">()); }
};

class TextRange : public Facade<u"TextRange"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::u16string Text() const { return get<u"Text">().to<std::u16string>(); }
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] ppt::Font Font() const { return ppt::Font(get<u"Font">()); }
    /// Start and length count from 1.
    [[nodiscard]] TextRange Characters(std::int32_t start = whole, std::int32_t length = whole) const {
        return TextRange(call<u"Characters">(start, length));
    }
    [[nodiscard]] TextRange Words(std::int32_t start = whole, std::int32_t length = whole) const {
        return TextRange(call<u"Words">(start, length));
    }
    [[nodiscard]] TextRange Paragraphs(std::int32_t start = whole, std::int32_t length = whole) const {
        return TextRange(call<u"Paragraphs">(start, length));
    }
};

class TextFrame : public Facade<u"TextFrame"> {
public:
    using Facade::Facade;
    [[nodiscard]] ppt::TextRange TextRange() const { return ppt::TextRange(get<u"TextRange">()); }
};

} // namespace ppt
