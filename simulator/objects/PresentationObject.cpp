#include "simulator/objects/PresentationObject.h"

#include "simulator/document/Masters.h"
#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/DocumentWindowObject.h"
#include "simulator/objects/DocumentWindowsObject.h"
#include "simulator/objects/MasterObject.h"
#include "simulator/objects/PageSetupObject.h"
#include "simulator/objects/PresentationsObject.h"
#include "simulator/objects/SlideShowSettingsObject.h"
#include "simulator/objects/SlideShowWindowObject.h"
#include "simulator/objects/SlidesObject.h"
#include "simulator/objects/TagsObject.h"
#include "simulator/objects/TriState.h"

namespace simulator {

namespace {

std::u16string_view extensionOf(PpSaveAsFileType format) {
    switch (format) {
    case ppSaveAsPresentation:
    case ppSaveAsDefault: return u".ppt";
    case ppSaveAsTemplate: return u".pot";
    case ppSaveAsShow: return u".pps";
    case ppSaveAsRTF: return u".rtf";
    }
    errors::invalidRequest(u"Presentation.SaveAs", u"Ce format de fichier n'est pas géré.");
}

} // namespace

const automation::MemberTable& PresentationObject::members() const {
    using automation::method;
    using automation::property;
    using This = PresentationObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::slides>(u"Slides"),
        property<&This::slideMaster>(u"SlideMaster"),
        property<&This::hasTitleMaster>(u"HasTitleMaster"),
        property<&This::titleMaster>(u"TitleMaster"),
        method<&This::addTitleMaster>(u"AddTitleMaster"),
        property<&This::notesMaster>(u"NotesMaster"),
        property<&This::handoutMaster>(u"HandoutMaster"),
        property<&This::slideShowSettings>(u"SlideShowSettings"),
        property<&This::slideShowWindow>(u"SlideShowWindow"),
        property<&This::pageSetup>(u"PageSetup"),
        property<&This::tags>(u"Tags"),
        property<&This::windows>(u"Windows"),
        property<&This::name>(u"Name").asDefault(),
        property<&This::fullName>(u"FullName"),
        property<&This::path>(u"Path"),
        property<&This::readOnly>(u"ReadOnly"),
        property<&This::saved, &This::setSaved>(u"Saved"),
        property<&This::snapToGrid, &This::setSnapToGrid>(u"SnapToGrid"),
        property<&This::gridDistance, &This::setGridDistance>(u"GridDistance"),
        method<&This::newWindow>(u"NewWindow"),
        method<&This::close>(u"Close"),
        method<&This::save>(u"Save"),
        method<&This::saveAs>(u"SaveAs", u"FileName FileFormat EmbedTrueTypeFonts"),
        method<&This::saveCopyAs>(u"SaveCopyAs", u"FileName FileFormat EmbedTrueTypeFonts"),
    });
    return table;
}

bool PresentationObject::isSame(const Object& other) const noexcept {
    const auto* const presentation = dynamic_cast<const PresentationObject*>(&other);
    return presentation != nullptr && isSameReference(presentation->presentation_, presentation_);
}

std::u16string PresentationObject::fullName() const {
    const PresentationPtr presentation = document();
    return presentation->path.empty() ? presentation->name : presentation->path;
}

std::u16string PresentationObject::path() const {
    const std::u16string full = document()->path;
    const std::size_t end = full.find_last_of(u'\\');
    return end == std::u16string::npos ? std::u16string() : full.substr(0, end);
}

MsoTriState PresentationObject::readOnly() const {
    return triState(document()->readOnly);
}

MsoTriState PresentationObject::saved() const {
    return triState(document()->saved);
}

void PresentationObject::setSaved(MsoTriState saved) const {
    document()->saved = saved != msoFalse;
}

MsoTriState PresentationObject::snapToGrid() const {
    return triState(document()->snapToGrid);
}

void PresentationObject::setSnapToGrid(MsoTriState snaps) const {
    const PresentationPtr presentation = document();
    presentation->snapToGrid = snaps != msoFalse;
    presentation->saved = false;
}

float PresentationObject::gridDistance() const {
    return document()->gridDistance;
}

void PresentationObject::setGridDistance(float points) const {
    constexpr float nearest = 1;
    constexpr float farthest = 144;
    errors::demandWithin(points, nearest, farthest, u"Presentation.GridDistance");
    document()->gridDistance = points;
    document()->saved = false;
}

automation::ObjectPtr PresentationObject::owner() const {
    return std::make_shared<PresentationsObject>(process());
}

std::shared_ptr<DocumentWindowObject> PresentationObject::newWindow() const {
    return std::make_shared<DocumentWindowObject>(process(), process()->openWindow(document()));
}

std::shared_ptr<SlidesObject> PresentationObject::slides() const {
    return std::make_shared<SlidesObject>(process(), document());
}

std::shared_ptr<MasterObject> PresentationObject::slideMaster() const {
    return objectOf(slideMasterOf(*document()));
}

MsoTriState PresentationObject::hasTitleMaster() const {
    const PresentationPtr presentation = document();
    return triState(titleMasterOf(*presentation, *slideMasterOf(*presentation)) != nullptr);
}

std::shared_ptr<MasterObject> PresentationObject::titleMaster() const {
    const PresentationPtr presentation = document();
    const SlidePtr master = titleMasterOf(*presentation, *slideMasterOf(*presentation));
    if (!master) {
        errors::invalidRequest(u"Presentation.TitleMaster", u"La présentation n'a pas de masque de titre.");
    }
    return objectOf(master);
}

std::shared_ptr<MasterObject> PresentationObject::addTitleMaster() const {
    const PresentationPtr presentation = document();
    if (titleMasterOf(*presentation, *slideMasterOf(*presentation))) {
        errors::invalidRequest(u"Presentation.AddTitleMaster", u"La présentation a déjà un masque de titre.");
    }
    presentation->saved = false;
    return objectOf(simulator::addTitleMaster(*presentation));
}

std::shared_ptr<MasterObject> PresentationObject::notesMaster() const {
    return objectOf(notesMasterOf(*document()));
}

std::shared_ptr<MasterObject> PresentationObject::handoutMaster() const {
    return objectOf(handoutMasterOf(*document()));
}

std::shared_ptr<MasterObject> PresentationObject::objectOf(const SlidePtr& master) const {
    return std::make_shared<MasterObject>(process(), master);
}

std::shared_ptr<SlideShowSettingsObject> PresentationObject::slideShowSettings() const {
    return std::make_shared<SlideShowSettingsObject>(process(), document());
}

std::shared_ptr<SlideShowWindowObject> PresentationObject::slideShowWindow() const {
    const PresentationPtr presentation = document();
    for (const SlideShowWindowPtr& show : process()->slideShows()) {
        if (show->presentation.lock() == presentation) {
            return std::make_shared<SlideShowWindowObject>(process(), show);
        }
    }
    errors::invalidRequest(u"Presentation.SlideShowWindow", u"Le diaporama de la présentation n'est pas en cours.");
}

std::shared_ptr<TagsObject> PresentationObject::tags() const {
    return std::make_shared<TagsObject>(process(), document());
}

std::shared_ptr<PageSetupObject> PresentationObject::pageSetup() const {
    return std::make_shared<PageSetupObject>(process(), document());
}

std::shared_ptr<DocumentWindowsObject> PresentationObject::windows() const {
    return std::make_shared<DocumentWindowsObject>(process(), document());
}

void PresentationObject::saveAs(const std::u16string& fileName, std::optional<PpSaveAsFileType> format,
                                std::optional<MsoTriState> embedFonts) const {
    const PpSaveAsFileType type = format.value_or(ppSaveAsDefault);
    if (type == ppSaveAsRTF) {
        saveCopyAs(fileName, format, embedFonts);
        return;
    }
    process()->saveAs(document(), target(fileName, type));
}

void PresentationObject::saveCopyAs(const std::u16string& fileName, std::optional<PpSaveAsFileType> format,
                                    std::optional<MsoTriState> /*embedFonts*/) const {
    const PpSaveAsFileType type = format.value_or(ppSaveAsDefault);
    const std::u16string file = target(fileName, type);
    const PresentationPtr presentation = document();
    if (type == ppSaveAsRTF) {
        process()->store().saveOutline(*presentation, file);
    } else {
        process()->store().save(*presentation, file);
    }
}

std::u16string PresentationObject::target(const std::u16string& fileName, PpSaveAsFileType format) const {
    const std::u16string file = process()->fullPath(fileName);
    const std::u16string_view extension = extensionOf(format);
    const bool hasExtension = file.find(u'.', file.find_last_of(u'\\') + 1) != std::u16string::npos;
    return hasExtension ? file : file + std::u16string(extension);
}

} // namespace simulator
