#include "automation/Parameters.h"

#include "automation/Error.h"

#include <algorithm>

namespace automation::parameters {

std::optional<std::size_t> placeOf(std::u16string_view parameters, const Name& name) noexcept {
    for (std::size_t place = 0; !parameters.empty(); ++place) {
        const std::size_t length = std::min(parameters.find(u' '), parameters.size());
        if (name.matches(parameters.substr(0, length))) {
            return place;
        }
        parameters.remove_prefix(std::min(length + 1, parameters.size()));
    }
    return std::nullopt;
}

std::vector<Value> inOrder(std::u16string_view parameters, std::span<const std::u16string_view> names, Access access,
                           std::span<Value> arguments) {
    const std::size_t newValues = access == Access::Put ? 1 : 0;
    const auto named = arguments.last(names.size() + newValues);
    std::vector<Value> ordered;
    for (Value& argument : arguments.first(arguments.size() - named.size())) {
        ordered.push_back(std::move(argument));
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto place = placeOf(parameters, names[i]);
        if (!place || (*place < ordered.size() && !ordered[*place].isMissing())) {
            raise(RunTimeError::NamedArgumentNotFound);
        }
        while (ordered.size() <= *place) {
            ordered.emplace_back(Missing());
        }
        ordered[*place] = std::move(named[i]);
    }
    if (newValues != 0) {
        ordered.push_back(std::move(named.back()));
    }
    return ordered;
}

} // namespace automation::parameters
