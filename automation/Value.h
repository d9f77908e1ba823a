#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace automation {

class Object;
class Value;

using ObjectPtr = std::shared_ptr<Object>;
using Array = std::vector<Value>;

/// The value of a variable never set; converts to False, 0 and the empty text.
struct Empty {
    friend bool operator==(Empty, Empty) = default;
};

/// The value of an optional argument left out; converts to nothing.
struct Missing {
    friend bool operator==(Missing, Missing) = default;
};

/// What a variable is a copy of, kept by the caller in another form.
class Original {
public:
    /// The copy has been written, and the original is to be what it is now already.
    virtual void follow() noexcept = 0;

protected:
    ~Original() = default;
};

/// What an argument passed by reference holds: a variable, and the original of it if it is a copy.
struct Reference {
    Value* variable;
    Original* original;

    friend bool operator==(const Reference&, const Reference&) = default;
};

template <typename T>
concept Enumeration = std::is_enum_v<T>;

/// The automation variant: what late-bound calls take and give. An object may be null (nothing).
///
/// Conversions follow the automation rules: whole numbers are rounded half to even, a number that does not fit raises
/// Overflow (6), a text that is no number or a value of the wrong kind raises TypeMismatch (13), an object stands for
/// the value of its default member, nothing raises ObjectNotSet (91).
class Value {
public:
    Value() noexcept = default;
    Value(Empty) noexcept {}
    Value(Missing) noexcept : storage_(Missing{}) {}
    template <std::same_as<bool> Boolean> Value(Boolean value) noexcept : storage_(value) {}
    Value(std::int16_t value) noexcept : storage_(value) {}
    Value(std::int32_t value) noexcept : storage_(value) {}
    Value(float value) noexcept : storage_(value) {}
    Value(double value) noexcept : storage_(value) {}
    Value(std::u16string value) noexcept : storage_(std::move(value)) {}
    Value(std::u16string_view value) : storage_(std::in_place_type<std::u16string>, value) {}
    Value(const char16_t* value) : Value(std::u16string_view(value)) {}
    Value(std::nullptr_t) noexcept : storage_(ObjectPtr()) {}
    template <std::derived_from<Object> T>
    Value(std::shared_ptr<T> object) noexcept : storage_(ObjectPtr(std::move(object))) {}
    Value(Array elements) noexcept : storage_(std::move(elements)) {}
    template <Enumeration E> Value(E value) noexcept : storage_(static_cast<std::int32_t>(value)) {}

    Value(const Value& other);
    Value& operator=(const Value& other);
    Value(Value&&) noexcept = default;
    Value& operator=(Value&&) noexcept = default;
    ~Value() = default;

    /// An argument passed by reference: reading it reads `variable`, and what the callee writes lands there. Where that
    /// is a copy, what is written at once is passed on to its original. Both must outlive the call.
    static Value reference(Value& variable, Original* original = nullptr) noexcept;

    /// The value itself, or the variable behind a by-reference argument.
    [[nodiscard]] const Value& target() const noexcept {
        const Value* const behind = variable();
        return behind != nullptr ? *behind : *this;
    }

    /// The variable behind a by-reference argument; null for a value.
    [[nodiscard]] Value* variable() const noexcept {
        const auto* const reference = std::get_if<Reference>(&storage_);
        return reference != nullptr ? reference->variable : nullptr;
    }

    /// Writes the variable behind a by-reference argument, and its original, before the call ends; a value itself.
    void write(Value value);

    template <typename T> [[nodiscard]] bool is() const noexcept {
        return std::holds_alternative<T>(target().storage_);
    }
    /// The alternative held; to be asked only where `is` says so.
    template <typename T> [[nodiscard]] const T& as() const { return std::get<T>(target().storage_); }

    [[nodiscard]] bool isEmpty() const noexcept { return is<Empty>(); }
    [[nodiscard]] bool isMissing() const noexcept { return is<Missing>(); }
    [[nodiscard]] bool isObject() const noexcept { return is<ObjectPtr>(); }

    /// The value as bool, std::int16_t, std::int32_t, float, double, std::u16string, ObjectPtr, Array or an enumeration
    /// (through its 32-bit number). What is held as that type is given without a conversion, and a value that nobody
    /// needs any more gives it away.
    ///@{
    template <typename T> [[nodiscard]] T to() const& {
        if constexpr (Enumeration<T>) {
            return static_cast<T>(to<std::int32_t>());
        } else if constexpr (std::is_same_v<T, Value>) {
            return target();
        } else {
            const T* const held = std::get_if<T>(&storage_);
            return held != nullptr ? *held : converted<T>();
        }
    }
    template <typename T> [[nodiscard]] T to() && {
        if constexpr (Enumeration<T> || std::is_same_v<T, Value>) {
            return std::as_const(*this).to<T>();
        } else {
            T* const held = std::get_if<T>(&storage_);
            return held != nullptr ? std::move(*held) : converted<T>();
        }
    }
    ///@}

    /// The value as a reader would write it, for traces and messages: texts in quotes, objects as <object>.
    [[nodiscard]] std::u16string display() const;

    /// Visits the alternative held, through a reference.
    template <typename Visitor> decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), target().storage_);
    }

    /// Same kind and same value; no conversion.
    friend bool operator==(const Value& left, const Value& right) { return left.storage_ == right.storage_; }

private:
    explicit Value(const Reference& by) noexcept : storage_(by) {}

    /// The value, or the variable behind it, as another type than the one held here.
    template <typename T> [[nodiscard]] T converted() const;

    using Storage = std::variant<Empty, Missing, bool, std::int16_t, std::int32_t, float, double, std::u16string,
                                 ObjectPtr, Array, Reference>;

    Storage storage_;
};

template <> bool Value::converted<bool>() const;
template <> std::int16_t Value::converted<std::int16_t>() const;
template <> std::int32_t Value::converted<std::int32_t>() const;
template <> float Value::converted<float>() const;
template <> double Value::converted<double>() const;
template <> std::u16string Value::converted<std::u16string>() const;
template <> ObjectPtr Value::converted<ObjectPtr>() const;
template <> Array Value::converted<Array>() const;

} // namespace automation
