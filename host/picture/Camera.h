#pragma once

#include "host/picture/Exposure.h"
#include "host/run/Witness.h"

namespace host {

/// Takes pictures of the working presentation: once a question has been prepared, and once it has been judged. It looks
/// when the module has answered, so that a PowerPoint that dies at its n-th call dies where it would without pictures.
class Camera final : public Witness {
public:
    /// Told of the slides that changed, before and after, each time that a verdict has been read.
    using Sink = std::function<void(std::vector<BeforeAfter>)>;

    /// `world` must outlive this object.
    Camera(World& world, Sink sink) : world_(world), sink_(std::move(sink)) {}

    void called(HostCall call, const automation::Error* error) override;
    void judged(const Reading& reading) override;

private:
    World& world_;
    Sink sink_;
    Exposure before_;
};

} // namespace host
