#include "host/world/LateBoundModule.h"

namespace host {

namespace {

using automation::ObjectPtr;
using automation::Value;

/// Passes the host's application reference and window handle by reference, and takes them back however the call ends.
template <typename Call> void exchanging(ObjectPtr& application, std::int32_t& window, const Call& call) {
    Value applicationValue(application);
    Value windowValue(window);
    const auto takeBack = [&] {
        application = applicationValue.to<ObjectPtr>();
        window = windowValue.to<std::int32_t>();
    };
    try {
        call(Value::reference(applicationValue), Value::reference(windowValue));
    } catch (...) {
        takeBack();
        throw;
    }
    takeBack();
}

} // namespace

void LateBoundModule::initQuestion(std::int32_t number, const std::u16string& folder, ObjectPtr& application,
                                   std::int32_t& window) {
    if (observer_) {
        application = automation::observed(automation::unobserved(application), observer_);
    }
    exchanging(application, window, [&](const Value& applicationReference, const Value& windowReference) {
        module_.call(u"InitQuestion", number, folder, applicationReference, windowReference, std::u16string());
    });
}

void LateBoundModule::testePoint() {
    module_.call(u"TestePoint");
}

bool LateBoundModule::erreurGenerale() {
    return module_.call(u"ErreurGenerale").to<bool>();
}

std::u16string LateBoundModule::causeErreur() {
    return module_.call(u"CauseErreur").to<std::u16string>();
}

bool LateBoundModule::bravoNuance() {
    return module_.call(u"BravoNuance").to<bool>();
}

std::vector<std::u16string> LateBoundModule::complement() {
    std::vector<std::u16string> texts;
    const automation::LateBound collection(module_.call(u"Complement").to<ObjectPtr>());
    const auto count = collection ? collection.call(u"count").to<std::int32_t>() : 0;
    for (std::int32_t i = 1; i <= count; ++i) {
        texts.push_back(collection.call(u"item", i).to<std::u16string>());
    }
    return texts;
}

void LateBoundModule::fermer() {
    module_.call(u"Fermer");
}

void LateBoundModule::quitter(ObjectPtr& application, std::int32_t& window) {
    exchanging(application, window, [&](const Value& applicationReference, const Value& windowReference) {
        module_.call(u"Quitter", applicationReference, windowReference);
    });
}

} // namespace host
