#include "simulator/objects/SlideMembers.h"

#include "simulator/document/Masters.h"
#include "simulator/document/SlideLayout.h"
#include "simulator/objects/HeadersFootersObject.h"
#include "simulator/objects/MasterObject.h"
#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/ShapeRangeObject.h"
#include "simulator/objects/ShapesObject.h"
#include "simulator/objects/SlideRangeObject.h"
#include "simulator/objects/SlideShowTransitionObject.h"
#include "simulator/objects/TagsObject.h"
#include "simulator/picture/SlidePicture.h"

namespace simulator {

const automation::MemberTable& SlideMembers::sharedMembers() {
    using automation::method;
    using automation::property;
    using This = SlideMembers;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::shapes>(u"Shapes"),
        property<&This::name, &This::setName>(u"Name"),
        property<&This::slideId>(u"SlideID"),
        method<&This::select>(u"Select"),
        method<&This::cut>(u"Cut"),
        method<&This::copy>(u"Copy"),
        property<&This::layout, &This::setLayout>(u"Layout"),
        method<&This::duplicate>(u"Duplicate"),
        method<&This::erase>(u"Delete"),
        property<&This::tags>(u"Tags"),
        property<&This::master>(u"Master"),
        property<&This::followMasterBackground, &This::setFollowMasterBackground>(u"FollowMasterBackground"),
        property<&This::displayMasterShapes, &This::setDisplayMasterShapes>(u"DisplayMasterShapes"),
        property<&This::background>(u"Background"),
        property<&This::notesPage>(u"NotesPage"),
        property<&This::headersFooters>(u"HeadersFooters"),
        property<&This::slideShowTransition>(u"SlideShowTransition"),
        property<&This::slideIndex>(u"SlideIndex"),
        property<&This::slideIndex>(u"SlideNumber"),
        method<&This::moveTo>(u"MoveTo", u"ToPos"),
        method<&This::exportTo>(u"Export", u"FileName FilterName ScaleWidth ScaleHeight"),
    });
    return table;
}

automation::ObjectPtr SlideMembers::owner() const {
    return std::make_shared<PresentationObject>(process(), presentation());
}

std::shared_ptr<ShapesObject> SlideMembers::shapes() const {
    return std::make_shared<ShapesObject>(process(), nodes().only());
}

std::shared_ptr<TagsObject> SlideMembers::tags() const {
    return std::make_shared<TagsObject>(process(), nodes().only());
}

std::shared_ptr<MasterObject> SlideMembers::master() const {
    return std::make_shared<MasterObject>(process(), masterOf(*presentation(), *nodes().only()));
}

MsoTriState SlideMembers::followMasterBackground() const {
    return nodes().common(msoTriStateMixed, [](const Slide& slide) { return triState(slide.followsMasterBackground); });
}

void SlideMembers::setFollowMasterBackground(MsoTriState follows) {
    const PresentationPtr document = presentation();
    nodes().change([&document, follows](Slide& slide) {
        const Fill shown = backgroundOf(*document, slide)->fill;
        slide.followsMasterBackground = follows != msoFalse;
        if (!slide.followsMasterBackground) {
            backgroundOf(*document, slide)->fill = shown;
        }
    });
}

MsoTriState SlideMembers::displayMasterShapes() const {
    return nodes().common(msoTriStateMixed, [](const Slide& slide) { return triState(slide.displaysMasterShapes); });
}

void SlideMembers::setDisplayMasterShapes(MsoTriState displayed) {
    nodes().change([displayed](Slide& slide) { slide.displaysMasterShapes = displayed != msoFalse; });
}

std::shared_ptr<ShapeRangeObject> SlideMembers::background() const {
    std::vector<ShapePtr> shapes;
    for (const SlidePtr& slide : nodes().all()) {
        shapes.push_back(backgroundOf(*presentation(), *slide));
    }
    return std::make_shared<ShapeRangeObject>(process(), shapes);
}

std::shared_ptr<HeadersFootersObject> SlideMembers::headersFooters() const {
    demandSlides(u"Slide.HeadersFooters");
    return std::make_shared<HeadersFootersObject>(process(), nodes());
}

std::shared_ptr<SlideShowTransitionObject> SlideMembers::slideShowTransition() const {
    demandSlides(u"Slide.SlideShowTransition");
    return std::make_shared<SlideShowTransitionObject>(process(), nodes());
}

std::shared_ptr<SlideRangeObject> SlideMembers::notesPage() const {
    demandSlides(u"Slide.NotesPage");
    std::vector<SlidePtr> pages;
    for (const SlidePtr& slide : nodes().all()) {
        pages.push_back(notesPageOf(*slide));
    }
    return std::make_shared<SlideRangeObject>(process(), pages);
}

std::int32_t SlideMembers::slideIndex() const {
    return static_cast<std::int32_t>(presentation()->placeOf(*slideItself())) + 1;
}

std::int32_t SlideMembers::slideId() const {
    return slideItself()->id;
}

std::u16string SlideMembers::name() const {
    return nodes().only()->name;
}

void SlideMembers::setName(const std::u16string& name) {
    demandSlides(u"Slide.Name");
    const bool keepsName = automation::equalIgnoringCase(nodes().only()->name, name);
    if (!keepsName && presentation()->isNameTaken(name)) {
        errors::invalidRequest(u"Slide.Name", u"Une autre diapositive porte ce nom.");
    }
    nodes().change([&name](Slide& slide) { slide.name = name; });
}

PpSlideLayout SlideMembers::layout() const {
    demandSlides(u"Slide.Layout");
    return nodes().common(PpSlideLayout{-2}, [](const Slide& slide) { return slide.layout; });
}

void SlideMembers::setLayout(PpSlideLayout layout) {
    demandSlides(u"Slide.Layout");
    const Layout* const known = findLayout(layout);
    if (known == nullptr) {
        errors::invalidValue(u"Slide.Layout");
    }
    nodes().change([known](Slide& slide) { layOut(slide, *known); });
}

void SlideMembers::erase() {
    demandSlides(u"Slide.Delete");
    const PresentationPtr document = presentation();
    for (const SlidePtr& slide : nodes().all()) {
        document->remove(slide);
    }
    markChanged(*document);
}

std::shared_ptr<SlideRangeObject> SlideMembers::duplicate() {
    demandSlides(u"Slide.Duplicate");
    const PresentationPtr document = presentation();
    std::size_t place = 0;
    for (const SlidePtr& slide : nodes().all()) {
        place = std::max(place, document->placeOf(*slide) + 1);
    }
    std::vector<SlidePtr> copies;
    for (const SlidePtr& slide : nodes().all()) {
        copies.push_back(slide->clone());
        document->insert(copies.back(), place++);
    }
    markChanged(*document);
    return std::make_shared<SlideRangeObject>(process(), copies);
}

void SlideMembers::copy() const {
    demandSlides(u"Slide.Copy");
    Clipboard& clipboard = process()->clipboard();
    clipboard.shapes.clear();
    clipboard.text = {};
    clipboard.slides.clear();
    for (const SlidePtr& slide : nodes().all()) {
        clipboard.slides.push_back(slide->clone());
    }
}

void SlideMembers::cut() {
    copy();
    erase();
}

void SlideMembers::moveTo(std::int32_t toPos) {
    demandSlides(u"Slide.MoveTo");
    const PresentationPtr document = presentation();
    document->move(nodes().only(), placeIn(document->slides().size(), toPos, u"Slide.MoveTo"));
    markChanged(*document);
}

void SlideMembers::exportTo(const std::u16string& fileName, const std::u16string& filterName,
                            std::optional<std::int32_t> scaleWidth, std::optional<std::int32_t> scaleHeight) const {
    demandSlides(u"Slide.Export");
    if (!automation::equalIgnoringCase(filterName, u"SVG")) {
        errors::invalidRequest(u"Slide.Export", u"Le filtre d'exportation « " + filterName + u" » n'est pas installé.");
    }
    constexpr std::int32_t mostPixels = 100000;
    picture::Wanted wanted{scaleWidth.value_or(0), scaleHeight.value_or(0), {}};
    errors::demandWithin(wanted.width, 0, mostPixels, u"Slide.Export");
    errors::demandWithin(wanted.height, 0, mostPixels, u"Slide.Export");
    const SlidePtr slide = nodes().only();
    const PresentationPtr document = presentation();
    const DocumentWindowPtr window = process()->windowOf(*document);
    if (window && window->shown() == slide) {
        wanted.selected = window->selection.shapes();
    }
    process()->store().savePicture(picture::drawSlide(*document, *slide, wanted), process()->fullPath(fileName));
}

void SlideMembers::select() const {
    demandSlides(u"Slide.Select");
    const DocumentWindowPtr window = process()->windowOf(*presentation());
    if (!window) {
        errors::invalidRequest(u"Slide.Select", u"La présentation n'est affichée dans aucune fenêtre.");
    }
    window->show(nodes().first());
    window->selection.selectSlides(nodes().all());
    window->activePane = DocumentWindow::outlinePane;
}

SlidePtr SlideMembers::slideItself() const {
    SlidePtr slide = nodes().only();
    return slide->kind == SheetKind::NotesPage ? simulator::alive(slide->owner) : slide;
}

void SlideMembers::demandSlides(std::u16string_view member) const {
    for (const SlidePtr& slide : nodes().all()) {
        if (slide->kind != SheetKind::Slide) {
            errors::invalidRequest(member, u"Ce membre ne vaut pas pour une page de commentaires.");
        }
    }
}

PresentationPtr SlideMembers::presentation() const {
    return simulator::alive(nodes().first()->presentation);
}

} // namespace simulator
