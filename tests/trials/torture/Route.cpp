#include "tests/trials/torture/Route.h"

#include <algorithm>

namespace trials::torture {

namespace {

using automation::Border;

/// A place on the way: the call that comes next, those before and after it.
class Place {
public:
    Place(const std::vector<Call>& calls, const std::vector<bool>& isOfPrepare, std::size_t at)
        : calls_(calls), isOfPrepare_(isOfPrepare), at_(at) {}

    [[nodiscard]] bool is(Border border) const { return calls_[at_].border == border; }
    [[nodiscard]] bool is(std::u16string_view member) const { return calls_[at_].member == member; }
    [[nodiscard]] bool follows(std::u16string_view text) const { return at_ != 0 && calls_[at_ - 1].text == text; }
    [[nodiscard]] bool precedes(std::u16string_view text) const {
        return at_ + 1 < calls_.size() && calls_[at_ + 1].text.starts_with(text);
    }
    [[nodiscard]] bool opens(std::u16string_view key) const {
        return is(u"open") && calls_[at_].text.find(key) != std::u16string::npos;
    }
    [[nodiscard]] bool isOfPrepare() const { return isOfPrepare_[at_]; }
    /// The attributes of a file are cleared that the course delivers: its name begins with a digit.
    [[nodiscard]] bool isDelivered() const {
        const std::u16string& text = calls_[at_].text;
        const std::size_t name = text.rfind(u'\\') + 1;
        return is(u"clearAttributes") && name < text.size() && text[name] >= u'0' && text[name] <= u'9';
    }
    /// The checks of every question are over: they have read the mark of each slide, twice.
    [[nodiscard]] bool isExamined() const {
        std::vector<std::u16string> slides;
        for (std::size_t i = 0; i < at_; ++i) {
            if (calls_[i].stage == Stage::Examining && calls_[i].text.starts_with(u"Slides.Item(")) {
                slides.push_back(calls_[i].text);
            }
        }
        const auto middle = slides.begin() + static_cast<std::ptrdiff_t>(slides.size() / 2);
        return !slides.empty() && slides.size() % 2 == 0 && std::equal(slides.begin(), middle, middle, slides.end()) &&
               calls_[at_ - 1].text.starts_with(u"Tags.Item(");
    }

private:
    const std::vector<Call>& calls_;
    const std::vector<bool>& isOfPrepare_;
    std::size_t at_;
};

/// Where one stage goes over into another.
struct Landmark {
    Stage from;
    Stage to;
    bool (*isAt)(const Place&);
};

constexpr auto bars = [](const Place& place) { return place.is(u"CommandBars"); };
constexpr auto window = [](const Place& place) { return place.is(Border::Window); };
constexpr auto visible = [](const Place& place) { return place.is(u"isVisible"); };
constexpr auto registry = [](const Place& place) { return place.is(Border::Registry); };
constexpr auto presentations = [](const Place& place) { return place.is(u"Presentations"); };
constexpr auto state = [](const Place& place) { return place.is(u"WindowState"); };
constexpr auto general = [](const Place& place) { return place.opens(u"Common\\General"); };

constexpr std::array landmarks{
    Landmark{Stage::Obtaining, Stage::Saving, bars},
    Landmark{Stage::Saving, Stage::Dialogs, window},
    Landmark{Stage::Dialogs, Stage::Creating, general},
    Landmark{Stage::Dialogs, Stage::Looking, visible},
    Landmark{Stage::Looking, Stage::Asking, state},
    Landmark{Stage::Looking, Stage::Closing, [](const Place& place) { return !visible(place); }},
    Landmark{Stage::Closing, Stage::Asking, state},
    Landmark{Stage::Asking, Stage::Cleaning, presentations},
    Landmark{Stage::Asking, Stage::Fronting, window},
    Landmark{Stage::Cleaning, Stage::Returning, bars},
    Landmark{Stage::Returning, Stage::Restoring, registry},
    Landmark{Stage::Restoring, Stage::Creating, general},
    Landmark{Stage::Restoring, Stage::LookingEnd, visible},
    Landmark{Stage::LookingEnd, Stage::Ending, [](const Place& place) { return !visible(place); }},
    Landmark{Stage::Creating, Stage::Cleaning, presentations},
    Landmark{Stage::Cleaning, Stage::Staging, [](const Place& place) { return place.isDelivered(); }},
    Landmark{Stage::Staging, Stage::Layout, bars},
    Landmark{Stage::Layout, Stage::Arranging,
             [](const Place& place) { return place.follows(u"CommandBars.DisplayTooltips"); }},
    Landmark{Stage::Arranging, Stage::Tooltips,
             [](const Place& place) { return place.precedes(u"CommandBars.DisplayTooltips"); }},
    Landmark{Stage::Tooltips, Stage::Preparing, [](const Place& place) { return place.isOfPrepare(); }},
    Landmark{Stage::Preparing, Stage::Pointing, registry},
    Landmark{Stage::Pointing, Stage::Startup, [](const Place& place) { return place.is(u"ShowStartupDialog"); }},
    Landmark{Stage::Startup, Stage::Fronting, window},
    Landmark{Stage::Fronting, Stage::Examining, presentations},
    Landmark{Stage::Examining, Stage::Checking, [](const Place& place) { return place.isExamined(); }},
};

Stage stageAt(const Place& place, Stage before) {
    for (const Landmark& landmark : landmarks) {
        if (landmark.from == before && landmark.isAt(place)) {
            return landmark.to;
        }
    }
    return before;
}

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
        if (call.stage == Stage::Creating) {
            call.key = u"HKEY_CURRENT_USER\\" + opened;
        } else if (call.member != u"close" && call.member != u"create") {
            call.key = std::u16string(folders) + argumentOf(isOpen && i + 1 < calls.size() ? calls[i + 1] : call);
        }
    }
}

} // namespace

automation::Value RouteRecorder::around(const automation::Crossing& crossing, const Next& next) {
    calls_.push_back({crossing.border, Stage::Looking, std::u16string(crossing.member), crossing.display(), {}});
    isOfPrepare_.push_back(prepare_.contains(crossing));
    return next();
}

std::vector<Call> RouteRecorder::route(HostCall operation, std::size_t calls) const {
    std::vector<Call> route(calls_.begin(), calls_.begin() + static_cast<std::ptrdiff_t>(calls));
    Stage stage = operation == HostCall::InitQuestion ? Stage::Obtaining : Stage::Looking;
    for (std::size_t i = 0; i < route.size(); ++i) {
        stage = stageAt(Place(route, isOfPrepare_, i), stage);
        route[i].stage = stage;
    }
    nameKeys(route);
    return route;
}

} // namespace trials::torture
