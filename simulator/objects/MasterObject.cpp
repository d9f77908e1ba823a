#include "simulator/objects/MasterObject.h"

#include "simulator/document/Masters.h"
#include "simulator/document/Order.h"
#include "simulator/objects/HeadersFootersObject.h"
#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/ShapeRangeObject.h"
#include "simulator/objects/ShapesObject.h"
#include "simulator/objects/SlideObject.h"

namespace simulator {

namespace {

/// What a master is called until it is given a name.
std::u16string_view usualName(SheetKind kind) noexcept {
    switch (kind) {
    case SheetKind::TitleMaster: return u"Masque de titre";
    case SheetKind::NotesMaster: return u"Masque des pages de commentaires";
    case SheetKind::HandoutMaster: return u"Masque du document";
    default: return u"Modèle par défaut";
    }
}

} // namespace

const automation::MemberTable& MasterObject::members() const {
    using automation::method;
    using automation::property;
    using This = MasterObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::shapes>(u"Shapes"),
        property<&This::background>(u"Background"),
        property<&This::name, &This::setName>(u"Name"),
        property<&This::width>(u"Width"),
        property<&This::height>(u"Height"),
        property<&This::headersFooters>(u"HeadersFooters"),
        method<&This::erase>(u"Delete"),
    });
    return table;
}

automation::ObjectPtr MasterObject::owner() const {
    return std::make_shared<PresentationObject>(process(), node()->presentation);
}

std::shared_ptr<ShapesObject> MasterObject::shapes() const {
    return std::make_shared<ShapesObject>(process(), node());
}

std::shared_ptr<ShapeRangeObject> MasterObject::background() const {
    const SlidePtr master = node();
    const ShapePtr shape = backgroundOf(*simulator::alive(master->presentation), *master);
    return std::make_shared<ShapeRangeObject>(process(), shape);
}

std::shared_ptr<HeadersFootersObject> MasterObject::headersFooters() const {
    return std::make_shared<HeadersFootersObject>(process(), node());
}

std::u16string MasterObject::name() const {
    const SlidePtr master = node();
    return master->name.empty() ? std::u16string(usualName(master->kind)) : master->name;
}

void MasterObject::setName(const std::u16string& name) {
    nodes().change([&name](Slide& master) { master.name = name; });
}

float MasterObject::width() const {
    const SlidePtr master = node();
    const PresentationPtr presentation = simulator::alive(master->presentation);
    return isPage(master->kind) ? presentation->notesWidth : presentation->slideWidth;
}

float MasterObject::height() const {
    const SlidePtr master = node();
    const PresentationPtr presentation = simulator::alive(master->presentation);
    return isPage(master->kind) ? presentation->notesHeight : presentation->slideHeight;
}

void MasterObject::erase() {
    const SlidePtr master = node();
    if (master->kind != SheetKind::TitleMaster) {
        errors::invalidRequest(u"Master.Delete", u"Ce masque ne peut pas être supprimé.");
    }
    const PresentationPtr presentation = simulator::alive(master->presentation);
    (void)order::take(presentation->masters, master);
    markChanged(*presentation);
}

std::shared_ptr<PowerPointObject> objectOf(const ProcessPtr& process, const std::weak_ptr<Slide>& sheet) {
    const SlidePtr there = sheet.lock();
    if (there && isMaster(there->kind)) {
        return std::make_shared<MasterObject>(process, there);
    }
    return std::make_shared<SlideObject>(process, sheet);
}

} // namespace simulator
