#pragma once

#include "ppt/Shape.h"

namespace ppt {

class Slide : public Facade<u"Slide"> {
public:
    using Facade::Facade;
    [[nodiscard]] ppt::Tags Tags() const { return ppt::Tags(get<u"Tags">()); }
    [[nodiscard]] ppt::Shapes Shapes() const { return ppt::Shapes(get<u"Shapes">()); }
};

class Slides : public Facade<u"Slides"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] Slide Item(const Index& index) const { return Slide(call<u"Item">(index)); }
};

class Presentation : public Facade<u"Presentation"> {
public:
    using Facade::Facade;
    /// File name without its folder.
    [[nodiscard]] std::u16string Name() const { return get<u"Name">().to<std::u16string>(); }
    /// Folder and file name.
    [[nodiscard]] std::u16string FullName() const { return get<u"FullName">().to<std::u16string>(); }
    [[nodiscard]] ppt::Slides Slides() const { return ppt::Slides(get<u"Slides">()); }
    [[nodiscard]] std::int32_t SnapToGrid() const { return get<u"SnapToGrid">().to<std::int32_t>(); }
    void SnapToGrid(MsoTriState snaps) const { put<u"SnapToGrid">(snaps); }
    /// A presentation marked as saved closes without a question.
    void Saved(MsoTriState saved) const { put<u"Saved">(saved); }
    void Close() const { call<u"Close">(); }
};

class Presentations : public Facade<u"Presentations"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] Presentation Item(const Index& index) const { return Presentation(call<u"Item">(index)); }
    Presentation Open(std::u16string_view fileName, MsoTriState readOnly, MsoTriState untitled,
                      MsoTriState withWindow) const {
        return Presentation(call<u"Open">(fileName, readOnly, untitled, withWindow));
    }
};

} // namespace ppt
