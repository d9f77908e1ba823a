#include "host/reason/Trail.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "host/language/Expectation.h"

#include <algorithm>

namespace host::reason {

using automation::Value;

namespace {

const Value& plain(const Value& argument) {
    const Value* const variable = argument.variable();
    return variable != nullptr ? *variable : argument;
}

std::string textIn(const Value& argument) {
    return automation::toUtf8(plain(argument).to<std::u16string>());
}

} // namespace

bool Access::isMark() const {
    return border == automation::Border::Automation && path.member() == u"Tags" && !error;
}

Value Trail::around(const automation::Crossing& crossing, const Next& next) {
    Path path = pathOf(crossing);
    try {
        Value result = other_ ? other_->around(crossing, next) : next();
        if (result.isObject()) {
            if (const auto object = result.to<automation::ObjectPtr>()) {
                // What the system hands out is the application.
                origins_[object.get()] = crossing.object == nullptr ? Path() : std::move(path);
            }
        } else if (crossing.member == u"Add" && crossing.target == u"Tags") {
            given_.push_back({path.owner().owner(), textIn(crossing.arguments.back())});
        } else if (crossing.access != automation::Access::Put && !result.isEmpty()) {
            accesses_.push_back({crossing.border, std::move(path), result, std::nullopt});
        }
        return result;
    } catch (const automation::Error& error) {
        accesses_.push_back({crossing.border, path, {}, inWords(error)});
        throw;
    }
}

std::vector<Mark> Trail::marks() const {
    std::vector<Mark> all;
    for (const Access& access : accesses_) {
        if (!access.isMark()) {
            continue;
        }
        const Path bearer = access.path.owner();
        const auto known =
            std::find_if(all.begin(), all.end(), [&](const Mark& mark) { return mark.bearer == bearer; });
        if (known == all.end()) {
            all.push_back({bearer, textIn(access.value)});
        }
    }
    return all;
}

Path Trail::pathOf(const automation::Crossing& crossing) const {
    std::vector<Value> arguments;
    for (const Value& argument : crossing.arguments) {
        arguments.push_back(plain(argument));
    }
    if (crossing.object == nullptr) {
        return Path().to(crossing.target).to(crossing.member, std::move(arguments));
    }
    const auto origin = origins_.find(crossing.object);
    return (origin == origins_.end() ? Path() : origin->second).to(crossing.member, std::move(arguments));
}

} // namespace host::reason
