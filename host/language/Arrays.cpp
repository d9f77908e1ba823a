#include "host/language/Arrays.h"

#include "automation/Error.h"

#include <algorithm>

namespace host::language {

namespace {

using automation::Array;
using automation::RunTimeError;
using automation::Value;

/// The place from 0 of the element at an index.
std::size_t placeOf(const Value& array, const Value& index, std::span<const std::int32_t> firsts) {
    if (!array.is<Array>()) {
        automation::raise(RunTimeError::TypeMismatch);
    }
    const std::int64_t place = std::int64_t{index.to<std::int32_t>()} - (firsts.empty() ? 0 : firsts.front());
    if (place < 0 || static_cast<std::uint64_t>(place) >= array.as<Array>().size()) {
        automation::raise(RunTimeError::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(place);
}

std::span<const std::int32_t> inner(std::span<const std::int32_t> firsts) {
    return firsts.subspan(std::min<std::size_t>(1, firsts.size()));
}

} // namespace

Value arrayOf(std::span<const Dimension> dimensions, const Value& initial) {
    constexpr std::int64_t mostElements = 1'000'000;
    Value element = initial;
    std::int64_t all = 1;
    for (std::size_t place = dimensions.size(); place-- > 0;) {
        const std::int64_t size = std::int64_t{dimensions[place].last} - dimensions[place].first + 1;
        if (size < 1) {
            automation::raise(RunTimeError::SubscriptOutOfRange);
        }
        all *= size; // both are below 2^33
        if (all > mostElements) {
            automation::raise(RunTimeError::OutOfMemory);
        }
        element = Array(static_cast<std::size_t>(size), element);
    }
    return dimensions.empty() ? Value(Array()) : element;
}

const Value& elementOf(const Value& array, std::span<const Value> indices, std::span<const std::int32_t> firsts) {
    const Value* element = &array;
    for (const Value& index : indices) {
        const std::size_t place = placeOf(*element, index, firsts);
        element = &element->as<Array>()[place];
        firsts = inner(firsts);
    }
    return *element;
}

void setElement(Value& array, std::span<const Value> indices, std::span<const std::int32_t> firsts, Value value) {
    static_cast<void>(elementOf(array, indices, firsts)); // raises while nothing has been moved
    if (indices.empty()) {
        array = std::move(value);
        return;
    }
    const std::size_t place = placeOf(array, indices.front(), firsts);
    auto elements = std::move(array).to<Array>();
    setElement(elements[place], indices.subspan(1), inner(firsts), std::move(value));
    array = std::move(elements);
}

void keepElements(Value& array, const Value& from) {
    if (!array.is<Array>() || !from.is<Array>()) {
        array = from;
        return;
    }
    auto elements = std::move(array).to<Array>();
    const auto& kept = from.as<Array>();
    for (std::size_t place = 0; place < std::min(elements.size(), kept.size()); ++place) {
        keepElements(elements[place], kept[place]);
    }
    array = std::move(elements);
}

} // namespace host::language
