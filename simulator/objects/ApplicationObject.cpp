#include "simulator/objects/ApplicationObject.h"

#include "simulator/objects/CommandBarsObject.h"
#include "simulator/objects/DocumentWindowsObject.h"
#include "simulator/objects/PresentationsObject.h"
#include "simulator/objects/SlideShowWindowsObject.h"
#include "simulator/objects/TriState.h"

namespace simulator {

namespace {
constexpr std::u16string_view unknownMember = u"Application (membre inconnu)";
} // namespace

const automation::MemberTable& ApplicationObject::members() const {
    using automation::method;
    using automation::property;
    using This = ApplicationObject;
    static const automation::MemberTable table{
        property<&This::presentations>(u"Presentations"),
        property<&This::windows>(u"Windows"),
        property<&This::activeWindow>(u"ActiveWindow"),
        property<&This::activePresentation>(u"ActivePresentation"),
        property<&This::slideShowWindows>(u"SlideShowWindows"),
        property<&This::commandBars>(u"CommandBars"),
        property<&PowerPointObject::application>(u"Application"),
        property<&This::name>(u"Name").asDefault(),
        property<&This::path>(u"Path"),
        property<&This::caption>(u"Caption"),
        property<&This::version>(u"Version"),
        property<&This::hwnd>(u"HWND"),
        property<&This::active>(u"Active"),
        property<&This::windowState, &This::setWindowState>(u"WindowState"),
        property<&This::length<&Frame::left>, &This::setLength<&Frame::left>>(u"Left"),
        property<&This::length<&Frame::top>, &This::setLength<&Frame::top>>(u"Top"),
        property<&This::length<&Frame::width>, &This::setLength<&Frame::width>>(u"Width"),
        property<&This::length<&Frame::height>, &This::setLength<&Frame::height>>(u"Height"),
        property<&This::visible, &This::setVisible>(u"Visible"),
        property<&This::showStartupDialog, &This::setShowStartupDialog>(u"ShowStartupDialog"),
        method<&This::activate>(u"Activate"),
        method<&This::quit>(u"Quit"),
    };
    return table;
}

bool ApplicationObject::isSame(const Object& other) const noexcept {
    const auto* const application = dynamic_cast<const ApplicationObject*>(&other);
    return application != nullptr && application->process() == process();
}

std::shared_ptr<PresentationsObject> ApplicationObject::presentations() const {
    return std::make_shared<PresentationsObject>(process());
}

std::shared_ptr<DocumentWindowsObject> ApplicationObject::windows() const {
    return std::make_shared<DocumentWindowsObject>(process());
}

std::shared_ptr<SlideShowWindowsObject> ApplicationObject::slideShowWindows() const {
    return std::make_shared<SlideShowWindowsObject>(process());
}

std::shared_ptr<CommandBarsObject> ApplicationObject::commandBars() const {
    return std::make_shared<CommandBarsObject>(process());
}

std::shared_ptr<DocumentWindowObject> ApplicationObject::activeWindow() const {
    const DocumentWindowPtr window = process()->activeWindow();
    if (!window) {
        errors::invalidRequest(unknownMember, u"Aucune fenêtre de document n'est active.");
    }
    return std::make_shared<DocumentWindowObject>(process(), window);
}

std::shared_ptr<PresentationObject> ApplicationObject::activePresentation() const {
    const DocumentWindowPtr window = process()->activeWindow();
    if (!window) {
        errors::invalidRequest(unknownMember, u"Aucune présentation n'est active.");
    }
    return std::make_shared<PresentationObject>(process(), window->presentation);
}

MsoTriState ApplicationObject::active() const {
    return triState(process()->window().isActive());
}

MsoTriState ApplicationObject::visible() const {
    return triState(process()->window().isVisible());
}

void ApplicationObject::setVisible(MsoTriState visible) const {
    MainWindow& window = process()->window();
    if (visible == msoFalse && window.isVisible()) {
        errors::invalidRequest(unknownMember, u"Il est interdit de masquer la fenêtre de l'application.");
    }
    window.setVisible(visible != msoFalse);
}

void ApplicationObject::setWindowState(PpWindowState state) const {
    if (state < ppWindowNormal || state > ppWindowMaximized) {
        errors::invalidRequest(u"Application.WindowState", u"La valeur n'est pas un état de fenêtre.");
    }
    process()->window().setState(state);
}

MsoTriState ApplicationObject::showStartupDialog() const {
    return triState(process()->settings().showStartupDialog);
}

void ApplicationObject::setShowStartupDialog(MsoTriState shown) const {
    process()->settings().showStartupDialog = shown != msoFalse;
}

} // namespace simulator
