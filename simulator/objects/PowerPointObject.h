#pragma once

#include "automation/Elements.h"
#include "automation/MemberTable.h"
#include "simulator/process/Errors.h"
#include "simulator/process/Process.h"

namespace simulator {

/// An object of the object model: every call passes through the process first, which refuses it when PowerPoint is busy
/// or has ended.
class PowerPointObject : public automation::Published, public std::enable_shared_from_this<PowerPointObject> {
public:
    explicit PowerPointObject(ProcessPtr process) : process_(std::move(process)) {}

    automation::Value invoke(const automation::Name& name, automation::Access access,
                             std::span<automation::Value> arguments) final {
        process_->admit();
        return Published::invoke(name, access, arguments);
    }

    /// The C++ classes bear the names of PowerPoint's: ShapeObject is its Shape.
    [[nodiscard]] std::u16string className() const final;

    /// The elements of a collection: what its `Item`, or another member, gives for the places from 1 to its `Count`, as
    /// it stands when each is asked for.
    [[nodiscard]] std::shared_ptr<automation::Elements> elements() { return elementsBy(u"Item"); }
    [[nodiscard]] std::shared_ptr<automation::Elements> elementsBy(std::u16string_view member);

    [[nodiscard]] automation::ObjectPtr application() const;
    /// What the object belongs to, by PowerPoint's name its `Parent`.
    [[nodiscard]] virtual automation::ObjectPtr owner() const;
    /// Who made the object's class: "PPT" in a number.
    [[nodiscard]] std::int32_t creator() const noexcept { return 0x50575054; }

    [[nodiscard]] const ProcessPtr& process() const noexcept { return process_; }

protected:
    /// `Application` and `Parent`, which all objects publish that belong to another.
    [[nodiscard]] static const automation::MemberTable& commonMembers();
    /// The same, and `Creator`, which the classes of Office publish.
    [[nodiscard]] static const automation::MemberTable& officeMembers();
    /// This object, for one that belongs to it.
    [[nodiscard]] automation::ObjectPtr self() const {
        return std::const_pointer_cast<PowerPointObject>(shared_from_this());
    }

private:
    ProcessPtr process_;
};

} // namespace simulator
