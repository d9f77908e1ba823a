#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class HeaderFooterObject;

/// HeadersFooters: headers, footers, date and number of some slides, or of all that follow a master.
class HeadersFootersObject final : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
    template <HeaderFooter HeadersFooters::*which> [[nodiscard]] std::shared_ptr<HeaderFooterObject> part() const {
        return make(which);
    }
    /// Raises an invalid request for anything but a notes master and a handout master.
    [[nodiscard]] std::shared_ptr<HeaderFooterObject> header() const;
    [[nodiscard]] MsoTriState displayOnTitleSlide() const;
    void setDisplayOnTitleSlide(MsoTriState displayed);
    /// Slides have those of their master again; a master has none.
    void clear();

private:
    [[nodiscard]] std::shared_ptr<HeaderFooterObject> make(HeaderFooter HeadersFooters::*which) const;
};

} // namespace simulator
