#pragma once

#include "automation/Elements.h"
#include "automation/MemberTable.h"
#include "simulator/process/Errors.h"
#include "simulator/process/Session.h"

namespace simulator {

/// An object of the object model: every call passes through the session first, which refuses it when PowerPoint is busy
/// or has ended.
class PowerPointObject : public automation::Published, public std::enable_shared_from_this<PowerPointObject> {
public:
    explicit PowerPointObject(SessionPtr session) : session_(std::move(session)) {}

    automation::Value invoke(const automation::Name& name, automation::Access access,
                             std::span<automation::Value> arguments) final {
        session_->admit();
        return Published::invoke(name, access, arguments);
    }

    /// The C++ classes bear the names of PowerPoint's: ShapeObject is its Shape.
    [[nodiscard]] std::u16string className() const final;

    /// The elements of a collection: what its `Item`, or another member, gives for the places from 1 to its `Count`, as
    /// it stands when each is asked for.
    [[nodiscard]] std::shared_ptr<automation::Elements> elements() { return elementsBy(u"Item"); }
    [[nodiscard]] std::shared_ptr<automation::Elements> elementsBy(std::u16string_view member);

    [[nodiscard]] const SessionPtr& session() const noexcept { return session_; }

private:
    SessionPtr session_;
};

} // namespace simulator
