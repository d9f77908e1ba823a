#include "host/run/GeneralCode.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

struct GeneralCode {
    std::u16string_view code;
    std::string_view meaning;
};

constexpr auto generalCodes = std::to_array<GeneralCode>({
    {u"AK", "PowerPoint's window is gone, or hidden"},
    {u"%AL", "PowerPoint does not answer"},
    {u"AM", "there is no main window of PowerPoint"},
    {u"A", "no presentation is open"},
    {u"C", "a prepared slide is missing"},
    // A slide that is gone leads to "C" before it could lead to "D".
    {u"D", "a prepared slide was copied, or a check before has counted the slides of this preparation"},
    {u"E", "the slides are out of order, or one was added"},
    {u"F", "the working presentation is not open from the host's folder"},
    {u"G", "the working presentation is open, but not the active one"},
});

} // namespace

std::string_view meaningOfGeneralCode(std::u16string_view code) noexcept {
    const auto* const found = std::find_if(generalCodes.begin(), generalCodes.end(),
                                           [&](const GeneralCode& each) { return each.code == code; });
    return found == generalCodes.end() ? std::string_view() : found->meaning;
}

} // namespace host
