#pragma once

#include "host/run/Witness.h"

namespace host {

/// Several witnesses as one.
class Witnesses final : public Witness {
public:
    /// `witness` must outlive this object.
    void add(Witness& witness) { all_.push_back(&witness); }

    void delivered(const std::vector<std::u16string>& names) override {
        each([&](Witness& witness) { witness.delivered(names); });
    }
    void calling(HostCall call) override {
        each([&](Witness& witness) { witness.calling(call); });
    }
    void called(HostCall call, const automation::Error* error) override {
        each([&](Witness& witness) { witness.called(call, error); });
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
};

} // namespace host
