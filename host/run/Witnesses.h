#pragma once

#include "host/run/Witness.h"

#include <algorithm>

namespace host {

/// Several witnesses as one. A call's end is told in the reverse of the order in which its beginning was, so that the
/// last witness sees nothing of what the others do around a call.
class Witnesses final : public Witness {
public:
    /// `witness` must outlive this object.
    void add(Witness& witness) { all_.push_back(&witness); }
    void add(std::unique_ptr<Witness> witness) {
        all_.push_back(witness.get());
        owned_.push_back(std::move(witness));
    }

    void delivered(const std::vector<std::u16string>& names) override {
        each([&](Witness& witness) { witness.delivered(names); });
    }
    void calling(HostCall call) override {
        each([&](Witness& witness) { witness.calling(call); });
    }
    void called(HostCall call, const automation::Error* error) override {
        std::for_each(all_.rbegin(), all_.rend(), [&](Witness* witness) { witness->called(call, error); });
    }
    void explain(Reading& reading) override {
        each([&](Witness& witness) { witness.explain(reading); });
    }
    void judged(const Reading& reading) override {
        each([&](Witness& witness) { witness.judged(reading); });
    }
    void performing(const language::Statement& statement) override {
        each([&](Witness& witness) { witness.performing(statement); });
    }

private:
    template <typename Event> void each(const Event& event) const {
        for (Witness* const witness : all_) {
            event(*witness);
        }
    }

    std::vector<Witness*> all_;
    std::vector<std::unique_ptr<Witness>> owned_;
};

} // namespace host
