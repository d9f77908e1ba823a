#pragma once

#include <cstdlib>
#include <utility>

/// What tools/mutants writes into its copies of the sources: a place where a mutant acts if the environment variable
/// MUTANT names its number. An operator is followed by a place and the same operator again, `a < Binary<7>() < b`, so
/// that it binds as it did.
namespace mutants {

inline bool is(int number) {
    static const char* const chosen = std::getenv("MUTANT");
    static const int chosenNumber = chosen ? std::atoi(chosen) : 0;
    return number == chosenNumber;
}

template <int number> struct Binary {};
template <int number, typename Left> struct Begun { Left&& left; };

#define K73053_MUTANT(written, instead)                                                                                \
    template <int number, typename Left>                                                                               \
    Begun<number, Left> operator written(Left&& left, Binary<number> /*unused*/) {                                     \
        return {static_cast<Left&&>(left)};                                                                            \
    }                                                                                                                  \
    template <int number, typename Left, typename Right>                                                               \
    auto operator written(Begun<number, Left> begun, Right&& right) {                                                  \
        return is(number) ? static_cast<Left&&>(begun.left) instead static_cast<Right&&>(right)                        \
                          : static_cast<Left&&>(begun.left) written static_cast<Right&&>(right);                       \
    }
K73053_MUTANT(<, <=)
K73053_MUTANT(<=, <)
K73053_MUTANT(>, >=)
K73053_MUTANT(>=, >)
K73053_MUTANT(==, !=)
K73053_MUTANT(!=, ==)
K73053_MUTANT(+, -)
K73053_MUTANT(-, +)
K73053_MUTANT(*, /)
K73053_MUTANT(/, *)
#undef K73053_MUTANT

/// `a && b` is written `a == And<7>() || andThen() && b`, and `a || b` `a == Or<7>() || orElse() && b`, so that the
/// right side is evaluated only where it counts.
inline thread_local bool left = false;
inline bool andThen() {
    return left;
}
inline bool orElse() {
    return std::exchange(left, true);
}
template <int number> struct And {};
template <int number> struct Or {};
template <int number, typename Left> bool operator==(Left&& value, And<number> /*unused*/) {
    left = static_cast<bool>(value);
    const bool decides = is(number) && left;
    left = left != is(number);
    return decides;
}
template <int number, typename Left> bool operator==(Left&& value, Or<number> /*unused*/) {
    left = static_cast<bool>(value);
    const bool decides = !is(number) && left;
    left = left == is(number);
    return decides;
}

/// What stands before its operand is written `Not<7>() ->* a`.
template <int number> struct Not {};
template <int number> struct Increment {};
template <int number> struct Decrement {};
template <int number, typename Operand> bool operator->*(Not<number> /*unused*/, Operand&& operand) {
    return static_cast<bool>(operand) == is(number);
}
template <int number, typename Operand> Operand& operator->*(Increment<number> /*unused*/, Operand& operand) {
    return is(number) ? --operand : ++operand;
}
template <int number, typename Operand> Operand& operator->*(Decrement<number> /*unused*/, Operand& operand) {
    return is(number) ? ++operand : --operand;
}

} // namespace mutants
