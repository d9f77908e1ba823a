#pragma once

#include "platform/ApplicationServers.h"
#include "simulator/system/EmbeddedProgram.h"

namespace simulator {

/// The automation servers of a computer: PowerPoint 2003, of which there is never more than one instance.
class EmbeddedServers final : public platform::ApplicationServers {
public:
    static constexpr std::u16string_view programmaticId = u"PowerPoint.Application.11";

    /// `program` must outlive this object.
    explicit EmbeddedServers(EmbeddedProgram& program) noexcept : program_(program) {}

    /// The running PowerPoint, visible or not.
    automation::ObjectPtr attach(std::u16string_view id) override;
    /// The running PowerPoint, or one that is started for this, invisible.
    automation::ObjectPtr create(std::u16string_view id) override;

private:
    EmbeddedProgram& program_;
};

} // namespace simulator
