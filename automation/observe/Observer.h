#pragma once

#include "automation/Object.h"
#include "automation/Unmoved.h"

#include <functional>
#include <memory>

namespace automation {

/// What a call crosses on its way out of the module.
enum class Border : std::uint8_t { Automation, Registry, Window, File, Keyboard, Locale };

/// The name of a border, as traces print it.
[[nodiscard]] std::u16string_view nameOf(Border border) noexcept;

/// One call about to cross a border.
struct Crossing {
    Border border;
    std::u16string_view target; ///< the class of the object called; empty where the caller does not know it
    std::u16string_view member;
    Access access;
    std::span<const Value> arguments;
    std::span<const std::u16string_view> parameters{}; ///< names of the last arguments but for a new value
    const Object* object = nullptr; ///< the object called, as a call before has handed it out; null for the system's

    /// The call as a macro would state it: `Slides.Item(2)`, `Application.Visible = -1`, `Slides.Add(2, Layout:=12)`;
    /// `(default)` where no member is named.
    [[nodiscard]] std::u16string display() const;
};

/// Stands around calls that cross a border: lists them, counts them, makes them fail. A chain of observers is made by
/// giving one observed object to the next.
class Observer : Unmoved {
public:
    using Next = std::function<Value()>;

    virtual ~Observer() = default;

    /// Performs the call by `next`, or raises in its stead. An automation call answers with its result, a call of the
    /// system with what it read, or with how it went.
    virtual Value around(const Crossing& crossing, const Next& next) = 0;
};

using ObserverPtr = std::shared_ptr<Observer>;

/// The object with an observer around every call to it and to every object that it hands out. Nothing stays nothing.
[[nodiscard]] ObjectPtr observed(const ObjectPtr& object, const ObserverPtr& observer);

/// The object behind all observers.
[[nodiscard]] ObjectPtr unobserved(const ObjectPtr& object);

} // namespace automation
