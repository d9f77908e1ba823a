#pragma once

#include "ppt/Shape.h"

namespace ppt {

class Selection : public Facade<u"Selection"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Type() const { return get<u"Type">().to<std::int32_t>(); }
    [[nodiscard]] ppt::ShapeRange ShapeRange() const { return ppt::ShapeRange(get<u"ShapeRange">()); }
    void Unselect() const { call<u"Unselect">(); }
};

class View : public Facade<u"View"> {
public:
    using Facade::Facade;
    void GotoSlide(std::int32_t index) const { call<u"GotoSlide">(index); }
};

class Pane : public Facade<u"Pane"> {
public:
    using Facade::Facade;
    void Activate() const { call<u"Activate">(); }
};

class Panes : public Facade<u"Panes"> {
public:
    using Facade::Facade;
    [[nodiscard]] Pane Item(const Index& index) const { return Pane(call<u"Item">(index)); }
};

class DocumentWindow : public Facade<u"DocumentWindow"> {
public:
    using Facade::Facade;
    void ViewType(PpViewType type) const { put<u"ViewType">(type); }
    [[nodiscard]] ppt::View View() const { return ppt::View(get<u"View">()); }
    [[nodiscard]] ppt::Panes Panes() const { return ppt::Panes(get<u"Panes">()); }
    [[nodiscard]] ppt::Selection Selection() const { return ppt::Selection(get<u"Selection">()); }
};

} // namespace ppt
