#include "simulator/files/powerpoint/SlideShowRecords.h"

#include "simulator/document/EntryEffects.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::powerpoint {

namespace {

using records::Record;
namespace type = records::type;

namespace transition {
enum : std::uint32_t { manualAdvance = 1, hidden = 4, autoAdvance = 1024 };
constexpr std::size_t timePlace = 0;
constexpr std::size_t effectPlace = 8; ///< direction, type, flags
constexpr std::size_t speedPlace = 12;
constexpr std::size_t length = 16;
constexpr std::uint32_t flagsShift = 16;
constexpr std::uint32_t typeShift = 8;
} // namespace transition

namespace setup {
enum : std::uint32_t {
    autoAdvance = 1,
    skipBuilds = 2,
    slideRange = 4,
    namedShow = 8,
    browse = 16,
    kiosk = 32,
    skipNarration = 64,
    loop = 128
};
constexpr std::uint32_t known = 255;
constexpr std::size_t penPlace = 0;
constexpr std::size_t restartPlace = 4;
constexpr std::size_t slidesPlace = 8; ///< the first, the last
constexpr std::size_t flagsPlace = 76;
constexpr std::size_t length = 80;
} // namespace setup

constexpr float milliseconds = 1000;
/// Codes of choices that are numbered from 1.
constexpr std::int32_t ppShowAll = 1;
constexpr std::int32_t ppShowSlideRange = 2;
constexpr std::int32_t ppShowNamedSlideShow = 3;
constexpr std::int32_t ppShowTypeSpeaker = 1;
constexpr std::int32_t ppShowTypeWindow = 2;
constexpr std::int32_t ppShowTypeKiosk = 3;
constexpr std::int32_t ppSlideShowManualAdvance = 1;
constexpr std::int32_t ppSlideShowUseSlideTimings = 2;

/// The record of a type with room for all that it says, put in place where there is none.
std::string& atomIn(Record& owner, std::uint16_t wanted, std::size_t length, const std::string& fresh,
                    std::uint8_t version) {
    Record* found = owner.find(wanted);
    if (found == nullptr) {
        std::vector<Record>& parts = owner.children;
        const auto place = std::find_if(parts.begin(), parts.end(), [](const Record& part) {
            return part.is(type::HeadersFooters, 0) || part.is(type::Drawing) || part.is(type::EndDocument);
        });
        found = &*parts.insert(place, Record::atom(wanted, fresh, 0, version));
    }
    found->data.resize(std::max(found->data.size(), length));
    return found->data;
}

std::uint32_t bit(std::uint32_t flag, bool on) noexcept {
    return on ? flag : 0;
}

} // namespace

Transition readTransition(const Record& slide) {
    Transition read;
    const Record* const atom = slide.find(type::SlideShowSlideInfoAtom);
    if (atom == nullptr || atom->data.size() < transition::length) {
        return read;
    }
    const std::uint32_t effect = files::numberAt(atom->data, transition::effectPlace);
    const std::uint32_t flags = effect >> transition::flagsShift;
    const entryEffect::Code code{static_cast<std::uint8_t>(effect >> transition::typeShift),
                                 static_cast<std::uint8_t>(effect)};
    read.effect = entryEffect::effectOf(code).value_or(0);
    const auto speed = static_cast<std::uint8_t>(atom->data[transition::speedPlace]);
    read.speed = std::min<std::int32_t>(speed, 2) + 1;
    read.advancesOnClick = (flags & transition::manualAdvance) != 0;
    read.advancesOnTime = (flags & transition::autoAdvance) != 0;
    read.isHidden = (flags & transition::hidden) != 0;
    const auto time = static_cast<std::int32_t>(files::numberAt(atom->data, transition::timePlace));
    read.advanceTime = static_cast<float>(std::max(time, 0)) / milliseconds;
    return read;
}

void putTransition(Record& slide, const Transition& wanted) {
    constexpr std::uint8_t version = 0;
    const Transition before = readTransition(slide);
    std::string& data =
        atomIn(slide, type::SlideShowSlideInfoAtom, transition::length, std::string(transition::length, '\0'), version);
    std::uint32_t effect = files::numberAt(data, transition::effectPlace);
    if (wanted.effect != before.effect) {
        const entryEffect::Code code = entryEffect::codeOf(wanted.effect);
        effect = (effect >> transition::flagsShift << transition::flagsShift) |
                 (std::uint32_t{code.type} << transition::typeShift) | code.direction;
    }
    constexpr std::uint32_t mine = transition::manualAdvance | transition::autoAdvance | transition::hidden;
    effect &= ~(mine << transition::flagsShift);
    effect |= (bit(transition::manualAdvance, wanted.advancesOnClick) |
               bit(transition::autoAdvance, wanted.advancesOnTime) | bit(transition::hidden, wanted.isHidden))
              << transition::flagsShift;
    files::putNumber(data, transition::effectPlace, effect);
    files::putNumber(data, transition::timePlace, static_cast<std::uint32_t>(wanted.advanceTime * milliseconds));
    data[transition::speedPlace] = static_cast<char>(wanted.speed - 1);
}

SlideShowSetup readSlideShow(const Record& document) {
    SlideShowSetup read;
    const Record* const atom = document.find(type::SlideShowSettings);
    if (atom == nullptr || atom->data.size() < setup::length) {
        return read;
    }
    const std::uint32_t slides = files::numberAt(atom->data, setup::slidesPlace);
    const std::uint32_t flags = files::numberAt(atom->data, setup::flagsPlace);
    read.startingSlide = std::max<std::int32_t>(static_cast<std::int16_t>(slides), 1);
    read.endingSlide = std::max<std::int32_t>(static_cast<std::int16_t>(slides >> 16U), 0);
    read.rangeType = (flags & setup::namedShow) != 0    ? ppShowNamedSlideShow
                     : (flags & setup::slideRange) != 0 ? ppShowSlideRange
                                                        : ppShowAll;
    read.showType = (flags & setup::kiosk) != 0    ? ppShowTypeKiosk
                    : (flags & setup::browse) != 0 ? ppShowTypeWindow
                                                   : ppShowTypeSpeaker;
    read.advanceMode = (flags & setup::autoAdvance) != 0 ? ppSlideShowUseSlideTimings : ppSlideShowManualAdvance;
    read.loopsUntilStopped = (flags & setup::loop) != 0;
    read.hasAnimation = (flags & setup::skipBuilds) == 0;
    read.hasNarration = (flags & setup::skipNarration) == 0;
    return read;
}

void putSlideShow(Record& document, const SlideShowSetup& wanted) {
    constexpr std::uint8_t version = 1;
    constexpr std::uint32_t redPen = 0xFE0000FF;
    constexpr std::uint32_t fiveMinutes = 300000;
    std::string fresh(setup::length, '\0');
    files::putNumber(fresh, setup::penPlace, redPen);
    files::putNumber(fresh, setup::restartPlace, fiveMinutes);
    std::string& data = atomIn(document, type::SlideShowSettings, setup::length, fresh, version);
    files::putNumber(data, setup::slidesPlace,
                     static_cast<std::uint16_t>(wanted.startingSlide) |
                         (std::uint32_t{static_cast<std::uint16_t>(wanted.endingSlide)} << 16U));
    const std::uint32_t others = files::numberAt(data, setup::flagsPlace) & ~setup::known;
    files::putNumber(data, setup::flagsPlace,
                     others | bit(setup::autoAdvance, wanted.advanceMode != ppSlideShowManualAdvance) |
                         bit(setup::skipBuilds, !wanted.hasAnimation) |
                         bit(setup::slideRange, wanted.rangeType == ppShowSlideRange) |
                         bit(setup::namedShow, wanted.rangeType == ppShowNamedSlideShow) |
                         bit(setup::browse, wanted.showType == ppShowTypeWindow) |
                         bit(setup::kiosk, wanted.showType == ppShowTypeKiosk) |
                         bit(setup::skipNarration, !wanted.hasNarration) | bit(setup::loop, wanted.loopsUntilStopped));
}

} // namespace simulator::powerpoint
