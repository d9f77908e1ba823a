#include "host/run/HostMoves.h"

namespace host {

void HostMoves::initQuestion(std::optional<std::int32_t> question, const std::optional<std::u16string>& folder) {
    host_.initQuestion(question.value_or(host_.question()), folder.value_or(host_.world().hostFolder()));
}

void HostMoves::forgetPowerPoint() {
    host_.application = nullptr;
    host_.window = TrainingHost::unknownWindow;
}

void HostMoves::kill() {
    forgetPowerPoint();
    host_.kill();
}

const automation::MemberTable& HostMoves::members() const {
    using automation::method;
    using automation::property;
    static const automation::MemberTable table{
        method<&HostMoves::initQuestion>(u"InitQuestion"),
        method<&HostMoves::testePoint>(u"TestePoint"),
        method<&HostMoves::fermer>(u"Fermer"),
        method<&HostMoves::quitter>(u"Quitter"),
        method<&HostMoves::deliver>(u"Deliver"),
        property<&HostMoves::application, &HostMoves::setApplication>(u"Application"),
        property<&HostMoves::window, &HostMoves::setWindow>(u"Window"),
        method<&HostMoves::forgetPowerPoint>(u"ForgetPowerPoint"),
        method<&HostMoves::kill>(u"Kill"),
        property<&HostMoves::erreurGenerale>(u"ErreurGenerale"),
        property<&HostMoves::causeErreur>(u"CauseErreur"),
        property<&HostMoves::bravoNuance>(u"BravoNuance"),
        property<&HostMoves::folder>(u"Folder"),
    };
    return table;
}

} // namespace host
