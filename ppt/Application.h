#pragma once

#include "ppt/CommandBars.h"
#include "ppt/Presentation.h"
#include "ppt/Window.h"

namespace ppt {

class Application : public Facade<u"Application"> {
public:
    using Facade::Facade;
    void Visible(MsoTriState visible) const { put<u"Visible">(visible); }
    [[nodiscard]] std::int32_t WindowState() const { return get<u"WindowState">().to<std::int32_t>(); }
    void WindowState(std::int32_t state) const { put<u"WindowState">(state); }
    [[nodiscard]] std::int32_t ShowStartupDialog() const { return get<u"ShowStartupDialog">().to<std::int32_t>(); }
    void ShowStartupDialog(MsoTriState shown) const { put<u"ShowStartupDialog">(shown); }
    [[nodiscard]] ppt::CommandBars CommandBars() const { return ppt::CommandBars(get<u"CommandBars">()); }
    [[nodiscard]] ppt::Presentations Presentations() const { return ppt::Presentations(get<u"Presentations">()); }
    [[nodiscard]] Presentation ActivePresentation() const { return Presentation(get<u"ActivePresentation">()); }
    [[nodiscard]] DocumentWindow ActiveWindow() const { return DocumentWindow(get<u"ActiveWindow">()); }
    void Quit() const { call<u"Quit">(); }
};

} // namespace ppt
