#pragma once

#include "automation/observe/Observer.h"

namespace trials::cost {

/// Tells the calls of a question's Prepare from those around it: it begins where the tooltips have been switched on,
/// and is over where the folders are pointed at the exercise.
class PrepareSpan {
public:
    /// True for a call of Prepare's. To be asked for every call, in order.
    bool contains(const automation::Crossing& crossing) noexcept {
        isIn_ = (isIn_ || isNext_) && crossing.border != automation::Border::Registry;
        isNext_ = crossing.member == u"DisplayTooltips" && crossing.access == automation::Access::Put && isArranging_;
        // The bars are arranged once a file has been given its working name; where they are put back none is.
        isArranging_ = (isArranging_ || crossing.member == u"rename") && !isNext_;
        return isIn_;
    }

private:
    bool isArranging_ = false;
    bool isNext_ = false;
    bool isIn_ = false;
};

} // namespace trials::cost
