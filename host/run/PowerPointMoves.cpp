#include "host/run/PowerPointMoves.h"

namespace host {

const automation::MemberTable& PowerPointMoves::members() const {
    using automation::method;
    using automation::property;
    static const automation::MemberTable table{
        method<&PowerPointMoves::start>(u"Start"),
        method<&PowerPointMoves::close>(u"Close"),
        method<&PowerPointMoves::kill>(u"Kill"),
        method<&PowerPointMoves::killAtCall>(u"KillAtCall"),
        method<&PowerPointMoves::hide>(u"Hide"),
        method<&PowerPointMoves::minimize>(u"Minimize"),
        method<&PowerPointMoves::stopAnswering>(u"StopAnswering"),
        method<&PowerPointMoves::answerAgain>(u"AnswerAgain"),
        method<&PowerPointMoves::openDialog>(u"OpenDialog"),
        method<&PowerPointMoves::closeDialog>(u"CloseDialog"),
        method<&PowerPointMoves::answerSaving>(u"AnswerSaving"),
        method<&PowerPointMoves::uninstall>(u"Uninstall"),
        property<&PowerPointMoves::isRunning>(u"IsRunning"),
        property<&PowerPointMoves::dialogs>(u"Dialogs"),
        property<&PowerPointMoves::window>(u"Window"),
    };
    return table;
}

} // namespace host
