#pragma once

#include "automation/Error.h"
#include "automation/Object.h"
#include "automation/ObjectVariable.h"
#include "automation/Parameters.h"
#include "automation/Unmoved.h"

#include <cassert>
#include <initializer_list>
#include <optional>
#include <tuple>
#include <vector>

namespace automation {

/// One member as a class publishes it: a method, or a property that can be read, written, or both.
struct Member {
    using Thunk = Value (*)(Object&, std::span<Value>);

    Name name;
    bool isMethod = false;
    Thunk read = nullptr;     ///< the method, or the property's getter
    Thunk write = nullptr;    ///< the property's setter
    bool isIndexable = false; ///< a getter without arguments: arguments given go to the default member of its result
    bool isDefault = false;
    std::u16string_view parameters{}; ///< their names with blanks between; empty where arguments are not named

    /// True where the member can be reached so.
    [[nodiscard]] constexpr bool answers(Access access) const noexcept {
        switch (access) {
        case Access::Get: return read != nullptr && !isMethod;
        case Access::Call: return read != nullptr && isMethod;
        case Access::GetOrCall: return read != nullptr;
        case Access::Put: return write != nullptr;
        }
        return false;
    }

    /// The same member, answering also when no name is given.
    [[nodiscard]] constexpr Member asDefault() const noexcept {
        Member copy = *this;
        copy.isDefault = true;
        return copy;
    }
};

/// The members of a class, by name, in the order in which it publishes them.
class MemberTable {
public:
    MemberTable(std::initializer_list<Member> members);

    /// These members, and then those of a class that publishes more.
    [[nodiscard]] MemberTable with(std::initializer_list<Member> more) const;

    [[nodiscard]] const std::vector<Member>& members() const noexcept { return members_; }

    /// The member of that name (the default one for an empty name); null where there is none.
    [[nodiscard]] const Member* find(const Name& name) const noexcept;

    /// Reaches a member of `object`, as Object::invoke describes it.
    Value invoke(Object& object, const Name& name, Access access, std::span<Value> arguments) const;

private:
    void index();

    std::vector<Member> members_;
    std::vector<std::uint16_t> slots_; ///< open hash over the names: position + 1, 0 where free
    std::size_t default_ = 0;          ///< position of the default member + 1, 0 where there is none
};

/// An object whose members stand in a member table.
class Published : public Object {
public:
    [[nodiscard]] virtual const MemberTable& members() const = 0;

    Value invoke(const Name& name, Access access, std::span<Value> arguments) override {
        return members().invoke(*this, name, access, arguments);
    }
};

namespace detail {

template <typename T> inline constexpr bool isOptional = false;
template <typename T> inline constexpr bool isOptional<std::optional<T>> = true;

/// How an argument becomes a parameter of type P, and how a by-reference one is written back.
template <typename P> class Parameter {
    using Plain = std::remove_cvref_t<P>;
    static constexpr bool writesBack = std::is_lvalue_reference_v<P> && !std::is_const_v<std::remove_reference_t<P>>;

public:
    static constexpr bool required = !isOptional<Plain>;

    Parameter(std::span<Value> arguments, std::size_t position)
        : argument_(position < arguments.size() ? &arguments[position] : nullptr) {
        convert();
    }

    [[nodiscard]] P pass() { return static_cast<P>(plain_); }

    void finish() noexcept {
        if constexpr (writesBack) {
            if (Value* const variable = argument_->variable()) {
                *variable = Value(std::move(plain_));
            }
        }
    }

private:
    void convert() {
        if constexpr (isOptional<Plain>) {
            if (argument_ != nullptr && !argument_->isMissing()) {
                plain_ = argument_->to<typename Plain::value_type>();
            }
        } else if (argument_->isMissing()) {
            raise(RunTimeError::ArgumentNotOptional);
        } else if (!std::is_same_v<Plain, ObjectPtr> || !argument_->isEmpty()) { // some clients have no object so
            plain_ = argument_->to<Plain>();
        }
    }

    Value* argument_;
    Plain plain_{};
};

/// An object variable is written while the function runs.
template <> class Parameter<ObjectVariable&> {
public:
    static constexpr bool required = true;

    Parameter(std::span<Value> arguments, std::size_t position) : variable_(arguments[position]) {
        if (arguments[position].isMissing()) {
            raise(RunTimeError::ArgumentNotOptional);
        }
        static_cast<void>(variable_.get()); // what is no object is refused before anything is done
    }

    [[nodiscard]] ObjectVariable& pass() noexcept { return variable_; }
    void finish() noexcept {}

private:
    ObjectVariable variable_;
};

/// Writes by-reference parameters back when the call ends, also where it raises: what the function has written stays.
template <typename... Parameters> struct Finisher : automation::Unmoved {
    std::tuple<Parameter<Parameters>...>& parameters;

    explicit Finisher(std::tuple<Parameter<Parameters>...>& all) noexcept : parameters(all) {}
    ~Finisher() {
        std::apply([](auto&... each) { (each.finish(), ...); }, parameters);
    }
};

template <typename Class, typename Result, typename... Parameters> struct Signature {
    static constexpr std::size_t count = sizeof...(Parameters);

    template <auto function> static Value thunk(Object& object, std::span<Value> arguments) {
        constexpr std::size_t required = (0 + ... + (Parameter<Parameters>::required ? 1 : 0));
        if (arguments.size() > count) {
            raise(RunTimeError::WrongNumberOfArguments);
        }
        if (arguments.size() < required) {
            raise(RunTimeError::ArgumentNotOptional);
        }
        return run<function>(static_cast<Class&>(object), arguments, std::index_sequence_for<Parameters...>());
    }

private:
    template <auto function, std::size_t... I>
    static Value run(Class& object, [[maybe_unused]] std::span<Value> arguments, std::index_sequence<I...>) {
        [[maybe_unused]] std::tuple<Parameter<Parameters>...> parameters{Parameter<Parameters>(arguments, I)...};
        const Finisher<Parameters...> finisher(parameters);
        if constexpr (std::is_void_v<Result>) {
            (object.*function)(std::get<I>(parameters).pass()...);
            return {};
        } else {
            return Value((object.*function)(std::get<I>(parameters).pass()...));
        }
    }
};

template <typename C, typename R, typename... P> Signature<C, R, P...> signatureOf(R (C::*)(P...));
template <typename C, typename R, typename... P> Signature<C, R, P...> signatureOf(R (C::*)(P...) const);
template <typename C, typename R, typename... P> Signature<C, R, P...> signatureOf(R (C::*)(P...) noexcept);
template <typename C, typename R, typename... P> Signature<C, R, P...> signatureOf(R (C::*)(P...) const noexcept);

template <auto function> using SignatureOf = decltype(signatureOf(function));

} // namespace detail

/// A method of the table's class. Parameters are taken as the C++ function declares them: plain types by value,
/// `std::optional` for an optional argument, a reference to non-const for one that is written back, `Value` for a
/// variant. Where arguments can be named, `parameters` has all their names with blanks between.
template <auto function>
constexpr Member method(std::u16string_view name, std::u16string_view parameters = {}) noexcept {
    using Signature = detail::SignatureOf<function>;
    assert(parameters.empty() || parameters::count(parameters) == Signature::count);
    return {.name = name, .isMethod = true, .read = &Signature::template thunk<function>, .parameters = parameters};
}

/// A property that can be read; its getter may take arguments.
template <auto getter> constexpr Member property(std::u16string_view name) noexcept {
    return {.name = name,
            .read = &detail::SignatureOf<getter>::template thunk<getter>,
            .isIndexable = detail::SignatureOf<getter>::count == 0};
}

/// A property that can be read and written.
template <auto getter, auto setter> constexpr Member property(std::u16string_view name) noexcept {
    Member member = property<getter>(name);
    member.write = &detail::SignatureOf<setter>::template thunk<setter>;
    return member;
}

} // namespace automation
