#pragma once

#include "ppt/Facade.h"

namespace ppt {

class CommandBarControl : public Facade<u"CommandBarControl"> {
public:
    using Facade::Facade;
    /// Accessibility state of the control itself, as bits.
    [[nodiscard]] std::int32_t accState() const { return get<u"accState">(automation::Missing()).to<std::int32_t>(); }
};

class CommandBarControls : public Facade<u"CommandBarControls"> {
public:
    using Facade::Facade;
    [[nodiscard]] CommandBarControl Item(const Index& index) const { return CommandBarControl(get<u"Item">(index)); }
};

class CommandBar : public Facade<u"CommandBar"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::u16string Name() const { return get<u"Name">().to<std::u16string>(); }
    [[nodiscard]] bool Enabled() const { return get<u"Enabled">().to<bool>(); }
    void Enabled(bool enabled) const { put<u"Enabled">(enabled); }
    [[nodiscard]] bool Visible() const { return get<u"Visible">().to<bool>(); }
    void Visible(bool visible) const { put<u"Visible">(visible); }
    [[nodiscard]] std::int32_t Position() const { return get<u"Position">().to<std::int32_t>(); }
    void Position(std::int32_t position) const { put<u"Position">(position); }
    [[nodiscard]] CommandBarControls Controls() const { return CommandBarControls(get<u"Controls">()); }
};

class CommandBars : public Facade<u"CommandBars"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] CommandBar Item(const Index& index) const { return CommandBar(get<u"Item">(index)); }
    [[nodiscard]] bool DisplayTooltips() const { return get<u"DisplayTooltips">().to<bool>(); }
    void DisplayTooltips(bool displayed) const { put<u"DisplayTooltips">(displayed); }
};

} // namespace ppt
