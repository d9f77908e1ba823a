#include "host/world/LateBoundModule.h"

namespace host {

namespace {

using automation::ObjectPtr;
using automation::Value;

/// The host's application reference and window handle, passed by reference and taken back however the call ends.
class Exchanged {
public:
    Exchanged(ObjectPtr& application, std::int32_t& window)
        : application_(application), window_(window), applicationValue_(application), windowValue_(window) {}
    ~Exchanged() {
        if (applicationValue_.isObject()) {
            application_ = applicationValue_.as<ObjectPtr>();
        }
        if (windowValue_.is<std::int32_t>()) {
            window_ = windowValue_.as<std::int32_t>();
        }
    }
    Exchanged(const Exchanged&) = delete;
    Exchanged& operator=(const Exchanged&) = delete;
    Exchanged(Exchanged&&) = delete;
    Exchanged& operator=(Exchanged&&) = delete;

    Value application() { return Value::reference(applicationValue_); }
    Value window() { return Value::reference(windowValue_); }

private:
    ObjectPtr& application_;
    std::int32_t& window_;
    Value applicationValue_;
    Value windowValue_;
};

} // namespace

void LateBoundModule::initQuestion(std::int32_t number, const std::u16string& folder, ObjectPtr& application,
                                   std::int32_t& window) {
    if (observer_) {
        application = automation::observed(automation::unobserved(application), observer_);
    }
    Exchanged exchanged(application, window);
    module_.call(u"InitQuestion", number, folder, exchanged.application(), exchanged.window(), u"");
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
    Exchanged exchanged(application, window);
    module_.call(u"Quitter", exchanged.application(), exchanged.window());
}

} // namespace host
