#include "tests/trials/torture/Fault.h"

#include "automation/LateBound.h"
#include "tests/trials/StandIn.h"

namespace trials::torture {

namespace {

using automation::Border;
using automation::Error;
using automation::RunTimeError;
using Kind = Fault::Kind;

constexpr auto outOfMemory = static_cast<std::int32_t>(0x8007000EU);
constexpr auto invalidRequest = static_cast<std::int32_t>(0x80048240U);

/// Milliseconds by which a late answer comes: longer than a refused call is made again.
constexpr std::int32_t late = 2500;
constexpr std::int32_t never = 0;
constexpr std::int32_t withoutEnd = 0;

/// Ends PowerPoint's process just before the call at a position; the calls themselves pass.
class Killer final : public automation::Observer {
public:
    Killer(std::size_t position, World& world) : left_(position), world_(world) {}

    automation::Value around(const automation::Crossing& /*crossing*/, const Next& next) override {
        if (left_ != 0 && --left_ == 0) {
            world_.powerPoint().kill();
        }
        return next();
    }

    [[nodiscard]] bool hasStruck() const noexcept { return left_ == 0; }

private:
    std::size_t left_;
    World& world_;
};

/// What a kind of fault is called, the calls that can fail so, and what they raise.
struct Nature {
    std::string_view name;
    bool (*fits)(Border);
    Error error;
};

const Nature& natureOf(Kind kind) {
    constexpr auto automationOnly = [](Border border) { return border == Border::Automation; };
    constexpr auto allocating = [](Border border) { return border == Border::Automation || border == Border::File; };
    constexpr auto ofSystem = [](Border border) { return border != Border::Automation; };
    constexpr auto any = [](Border /*border*/) { return true; };
    static const Error dead(automation::remote::serverUnavailable, u"Serveur", u"Le serveur RPC n'est pas disponible.");
    static const Error refused(automation::remote::callRejected, u"", u"");
    static const std::array<Nature, 9> all{{
        {"automation exception", automationOnly,
         Error(invalidRequest, u"Microsoft PowerPoint", u"Requête non valide.")},
        {"server busy", automationOnly,
         Error(automation::remote::callRejected, u"Appel", u"L'appel a été rejeté par l'appelé.")},
        {"server dead", automationOnly, dead},
        {"out of memory", allocating, Error(outOfMemory, u"Système", u"Mémoire insuffisante.")},
        {"access denied", ofSystem, Error(RunTimeError::PathAccess)},
        {"PowerPoint killed", any, dead},
        {"PowerPoint dies", automationOnly, dead},
        {"PowerPoint refuses", automationOnly, refused},
        {"PowerPoint answers late", automationOnly, refused},
    }};
    return all.at(static_cast<std::size_t>(kind));
}

} // namespace

bool Fault::fits(Border border) const {
    return natureOf(kind).fits(border);
}

const Error& Fault::error() const {
    return natureOf(kind).error;
}

std::string Fault::display() const {
    const bool lasts = lasting == Lasting::FromThereOn && !isDeath();
    return std::string(natureOf(kind).name) + (lasts ? " from there on" : "");
}

Strike Fault::at(std::size_t position, World& world) const {
    const auto strike = [](auto observer) { return Strike{observer, [observer] { return observer->hasStruck(); }}; };
    if (kind == Kind::Killed) {
        return strike(std::make_shared<Killer>(position, world));
    }
    return strike(std::make_shared<automation::FaultInjector>(
        position, lasting, error(), [fault = *this](Border border) { return !fault.fits(border); }));
}

void Fault::arm(std::size_t position) const {
    const auto call = static_cast<std::int32_t>(position);
    const automation::LateBound standIn = trials::standIn();
    switch (kind) {
    case Kind::Dies: standIn.call(u"DieAtCall", call); break;
    case Kind::Refuses: standIn.call(u"RefuseAtCall", call, lasting == Lasting::Once ? 1 : withoutEnd); break;
    case Kind::Late: standIn.call(u"DelayCall", call, late); break;
    default: automation::raise(RunTimeError::InvalidProcedureCall);
    }
}

void Fault::disarm() {
    const automation::LateBound standIn = trials::standIn();
    standIn.put(u"Busy", false);
    standIn.call(u"DieAtCall", never);
}

bool Fault::hasStruck(World& world) const {
    if (isDeath()) {
        return world.powerPoint().window() == 0;
    }
    const automation::LateBound standIn = trials::standIn();
    return standIn.get(kind == Kind::Late ? u"Delayed" : u"Refused").to<std::int32_t>() != 0;
}

const std::vector<Fault>& Fault::all() {
    static const std::vector<Fault> faults = [] {
        std::vector<Fault> every;
        for (const Kind each : {Kind::Exception, Kind::Busy, Kind::Dead, Kind::OutOfMemory, Kind::AccessDenied}) {
            every.push_back({each, Lasting::Once});
            every.push_back({each, Lasting::FromThereOn});
        }
        every.push_back({Kind::Killed, Lasting::FromThereOn});
        return every;
    }();
    return faults;
}

const std::vector<Fault>& Fault::remote() {
    static const std::vector<Fault> faults{{Kind::Dies, Lasting::FromThereOn},
                                           {Kind::Refuses, Lasting::Once},
                                           {Kind::Refuses, Lasting::FromThereOn},
                                           {Kind::Late, Lasting::Once}};
    return faults;
}

} // namespace trials::torture
