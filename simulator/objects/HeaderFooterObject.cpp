#include "simulator/objects/HeaderFooterObject.h"

#include "simulator/document/HeadersFootersOf.h"
#include "simulator/objects/HeadersFootersObject.h"

namespace simulator {

const automation::MemberTable& HeaderFooterObject::members() const {
    using automation::property;
    using This = HeaderFooterObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::visible, &This::setVisible>(u"Visible"),
        property<&This::text, &This::setText>(u"Text"),
        property<&This::useFormat, &This::setUseFormat>(u"UseFormat"),
        property<&This::format, &This::setFormat>(u"Format"),
    });
    return table;
}

automation::ObjectPtr HeaderFooterObject::owner() const {
    return std::make_shared<HeadersFootersObject>(process(), sheets_);
}

bool HeaderFooterObject::isSame(const Object& other) const noexcept {
    const auto* const peer = dynamic_cast<const HeaderFooterObject*>(&other);
    return peer != nullptr && sheets_ == peer->sheets_ && part_ == peer->part_;
}

MsoTriState HeaderFooterObject::visible() const {
    return triState((all().*part_).isVisible);
}

void HeaderFooterObject::setVisible(MsoTriState visible) {
    changeAll([&](HeadersFooters& each) { (each.*part_).isVisible = visible != msoFalse; });
}

std::u16string HeaderFooterObject::text() const {
    demandText();
    return (all().*part_).text;
}

void HeaderFooterObject::setText(const std::u16string& text) {
    demandText();
    changeAll([&](HeadersFooters& each) { (each.*part_).text = text; });
}

MsoTriState HeaderFooterObject::useFormat() const {
    demandDate(u"HeaderFooter.UseFormat");
    return triState(all().dateUsesFormat);
}

void HeaderFooterObject::setUseFormat(MsoTriState uses) {
    demandDate(u"HeaderFooter.UseFormat");
    changeAll([uses](HeadersFooters& each) { each.dateUsesFormat = uses != msoFalse; });
}

std::int32_t HeaderFooterObject::format() const {
    demandDate(u"HeaderFooter.Format");
    return all().dateFormat;
}

void HeaderFooterObject::setFormat(std::int32_t format) {
    constexpr std::int32_t ppDateTimeMdyy = 1;
    constexpr std::int32_t ppDateTimehmmssAMPM = 13;
    demandDate(u"HeaderFooter.Format");
    errors::demandWithin(format, ppDateTimeMdyy, ppDateTimehmmssAMPM, u"HeaderFooter.Format");
    changeAll([format](HeadersFooters& each) { each.dateFormat = format; });
}

const HeadersFooters& HeaderFooterObject::all() const {
    const SlidePtr sheet = sheets_.first();
    return headersFootersOf(*simulator::alive(sheet->presentation), *sheet);
}

template <typename Change> void HeaderFooterObject::changeAll(const Change& change) const {
    sheets_.change(
        [&change](Slide& sheet) { change(ownHeadersFooters(*simulator::alive(sheet.presentation), sheet)); });
}

void HeaderFooterObject::demandDate(std::u16string_view member) const {
    if (part_ != &HeadersFooters::date) {
        errors::invalidRequest(member, u"Ce membre ne vaut que pour la date.");
    }
}

void HeaderFooterObject::demandText() const {
    if (part_ == &HeadersFooters::number) {
        errors::invalidRequest(u"HeaderFooter.Text", u"Un numéro n'a pas de texte.");
    }
}

} // namespace simulator
