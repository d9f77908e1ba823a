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

const Value& elementAt(const Value& array, std::span<const Value> indices, std::span<const std::int32_t> firsts) {
    const Value* element = &array;
    for (const Value& index : indices) {
        const std::size_t place = placeOf(*element, index, firsts);
        element = &element->as<Array>()[place];
        firsts = inner(firsts);
    }
    return *element;
}

void setElementAt(Value& array, std::span<const Value> indices, std::span<const std::int32_t> firsts, Value value) {
    if (indices.empty()) {
        array = std::move(value);
        return;
    }
    const std::size_t place = placeOf(array, indices.front(), firsts);
    auto elements = std::move(array).to<Array>();
    setElementAt(elements[place], indices.subspan(1), inner(firsts), std::move(value));
    array = std::move(elements);
}

void keepAll(Value& array, const Value& from) {
    if (!array.is<Array>() || !from.is<Array>()) {
        array = from;
        return;
    }
    auto elements = std::move(array).to<Array>();
    const auto& kept = from.as<Array>();
    for (std::size_t place = 0; place < std::min(elements.size(), kept.size()); ++place) {
        keepAll(elements[place], kept[place]);
    }
    array = std::move(elements);
}

bool holdsElements(const Value& value) {
    return value.is<Array>() && !value.as<Array>().empty();
}

} // namespace

Variable arrayOf(std::span<const Dimension> dimensions, const Value& initial) {
    constexpr std::int64_t mostElements = 1'000'000;
    Variable array{initial, std::vector<std::int32_t>(dimensions.size())};
    std::int64_t all = 1;
    for (std::size_t place = dimensions.size(); place-- > 0;) {
        array.firsts[place] = dimensions[place].first;
        const std::int64_t size = std::int64_t{dimensions[place].last} - dimensions[place].first + 1;
        if (size < 1) {
            automation::raise(RunTimeError::SubscriptOutOfRange);
        }
        all *= size; // both are below 2^33
        if (all > mostElements) {
            automation::raise(RunTimeError::OutOfMemory);
        }
        array.value = Array(static_cast<std::size_t>(size), array.value);
    }
    return dimensions.empty() ? Variable{Array(), {}} : array;
}

Dimension dimensionOf(const Variable& array, std::int32_t dimension) {
    const Value* inside = &array.value;
    for (std::int32_t depth = 1; depth < dimension && holdsElements(*inside); ++depth) {
        inside = &inside->as<Array>().front();
    }
    if (dimension < 1 || dimension > mostDimensions || (dimension > 1 && !inside->is<Array>())) {
        automation::raise(RunTimeError::SubscriptOutOfRange);
    }
    const auto size = static_cast<std::int64_t>(inside->to<Array>().size());
    const auto place = static_cast<std::size_t>(dimension) - 1;
    const std::int32_t first = place < array.firsts.size() ? array.firsts[place] : 0;
    return {first, static_cast<std::int32_t>(first + size - 1)};
}

const Value& elementOf(const Variable& array, std::span<const Value> indices) {
    return elementAt(array.value, indices, array.firsts);
}

void setElement(Variable& array, std::span<const Value> indices, Value value) {
    static_cast<void>(elementOf(array, indices)); // raises while nothing has been moved
    setElementAt(array.value, indices, array.firsts, std::move(value));
}

void keepElements(Variable& array, const Variable& from) {
    if (!holdsElements(from.value)) {
        return;
    }
    if (array.firsts != (from.firsts.empty() ? std::vector<std::int32_t>(array.firsts.size(), 0) : from.firsts)) {
        automation::raise(RunTimeError::SubscriptOutOfRange);
    }
    keepAll(array.value, from.value);
}

} // namespace host::language
