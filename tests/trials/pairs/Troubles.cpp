#include "tests/trials/pairs/Troubles.h"

#include <algorithm>

namespace trials::pairs {

namespace {

using automation::RunTimeError;
using torture::Strike;
using MemoryLasting = ScarceMemory::Lasting;

memory::Scarcity scarcityOf(const std::vector<Trouble>& troubles) {
    const auto found = std::find_if(troubles.begin(), troubles.end(), [](const Trouble& each) { return !each.fault; });
    const bool lasts = found != troubles.end() && found->lasts;
    return {found == troubles.end() ? 0 : found->position, lasts ? MemoryLasting::FromThereOn : MemoryLasting::Once};
}

} // namespace

std::int32_t Trouble::number() const {
    return fault ? fault->error().number() : static_cast<std::int32_t>(RunTimeError::OutOfMemory);
}

bool Trouble::isLike(const Trouble& other) const {
    return fault.has_value() == other.fault.has_value() && (!fault || fault->kind == other.fault->kind);
}

std::string Trouble::display() const {
    return fault ? fault->display() + " at call " + std::to_string(position)
                 : std::string("memory gone") + (lasts ? " from there on" : "") + " at allocation " +
                       std::to_string(position);
}

Troubles::Troubles(std::vector<Trouble> troubles) : troubles_(std::move(troubles)), scarcity_(scarcityOf(troubles_)) {}

automation::Value Troubles::around(const automation::Crossing& crossing, const Next& next) {
    if (isUnderWay_) {
        const PlentyOfMemory plenty;
        borders_.push_back(crossing.border);
        struck_ = hasFirstStruck() ? struck_ : Progress{borders_.size(), ScarceMemory::asked()};
    }
    if (crossing.border == automation::Border::Automation) {
        return pass(strikes_, crossing, next);
    }
    const PlentyOfMemory plenty; // the system's own
    return pass(strikes_, crossing, next);
}

automation::Value Troubles::pass(std::span<const Strike> strikes, const automation::Crossing& crossing,
                                 const Next& next) {
    if (strikes.empty()) {
        return scarcity_.around(crossing, next);
    }
    const auto others = [&] { return pass(strikes.first(strikes.size() - 1), crossing, next); };
    // The last one sees every call, also those that others make fail. Nothing is allocated for this.
    return strikes.back().observer->around(crossing, std::cref(others));
}

void Troubles::begin(World& world) {
    scarcity_.begin(world);
    for (const Trouble& each : troubles_) {
        if (each.fault) {
            strikes_.push_back(each.fault->at(each.position, world));
        }
    }
    isUnderWay_ = true;
}

std::size_t Troubles::calls(World& world) {
    isUnderWay_ = false;
    ended_ = {borders_.size(), scarcity_.calls(world)};
    return ended_.calls;
}

bool Troubles::hasFirstStruck() const {
    const bool isOfMemory = strikes_.empty() || !troubles_.front().fault;
    return isOfMemory ? ScarceMemory::hasStruck() : strikes_.front().hasStruck();
}

bool Troubles::hasStruck(World& world) {
    return scarcity_.hasStruck(world) &&
           std::all_of(strikes_.begin(), strikes_.end(), [](const Strike& each) { return each.hasStruck(); });
}

void Troubles::end(World& /*world*/) {
    strikes_.clear();
}

} // namespace trials::pairs
