#include "tests/trials/torture/Route.h"

namespace trials::torture {

namespace {

using automation::Border;

/// The first argument of a call that is a text.
std::u16string argumentOf(const Call& call) {
    const std::size_t begin = call.text.find(u'"') + 1;
    return call.text.substr(begin, call.text.find(u'"', begin) - begin);
}

/// Keys are named by their paths, but for those of the four folders: there it is the value's name that counts.
void nameKeys(std::vector<Call>& calls) {
    constexpr std::u16string_view folders =
        u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\Recent Folder List\\";
    std::u16string opened;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        Call& call = calls[i];
        const bool isOpen = call.border == Border::Registry && call.member == u"open";
        opened = isOpen ? argumentOf(call) : opened;
        if (call.border != Border::Registry) {
            continue;
        }
        if (call.phase == Phase::Creating) {
            call.key = u"HKEY_CURRENT_USER\\" + opened;
        } else if (call.member != u"close" && call.member != u"create") {
            call.key = std::u16string(folders) + argumentOf(isOpen && i + 1 < calls.size() ? calls[i + 1] : call);
        }
    }
}

} // namespace

automation::Value RouteRecorder::around(const automation::Crossing& crossing, const Next& next) {
    calls_.push_back({crossing.border, Phase::Looking, std::u16string(crossing.member), crossing.display(), {}});
    return log_.around(crossing, next);
}

std::vector<Call> RouteRecorder::route(const std::vector<trace::Line>& expected, std::size_t calls) const {
    std::vector<Call> route(calls_.begin(), calls_.begin() + static_cast<std::ptrdiff_t>(calls));
    auto call = route.begin();
    for (const trace::Line& line : expected) {
        for (std::size_t left = trace::callsIn(line.text); left != 0 && call != route.end(); --left) {
            (call++)->phase = line.phase;
        }
    }
    nameKeys(route);
    return route;
}

std::string RouteRecorder::differenceOf(const std::vector<trace::Line>& expected, std::size_t calls) {
    std::vector<std::string> lines = log_.takeLines();
    std::size_t first = 0;
    for (std::size_t counted = 0; first != lines.size() && counted < calls; ++first) {
        counted += trace::callsIn(lines[first]);
    }
    lines.resize(first);
    return trace::differenceOf(lines, expected);
}

} // namespace trials::torture
