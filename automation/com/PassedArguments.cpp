#include "automation/com/PassedArguments.h"

#include "automation/Error.h"
#include "automation/FirstError.h"
#include "automation/com/Objects.h"
#include "automation/com/VariantReader.h"

namespace automation::com {

namespace {

/// True where a variable still holds the object that a value passed there.
bool holdsStill(const Variant& variable, const Value& value) {
    return variable.vt == VT_DISPATCH && value.isObject() &&
           dispatchOf(value.as<ObjectPtr>()).get() == variable.pdispVal;
}

} // namespace

PassedArguments::PassedArguments(std::span<Value> arguments, Access access, std::span<const DISPID> named)
    : arguments_(arguments), variables_(arguments.size()), passed_(arguments.size()),
      named_(named.rbegin(), named.rend()) {
    if (access == Access::Put && arguments.empty()) {
        raise(RunTimeError::WrongNumberOfArguments);
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool isNewValue = access == Access::Put && i + 1 == arguments.size();
        Variant& place = passed_[arguments.size() - 1 - i];
        if (arguments[i].variable() != nullptr && !isNewValue) {
            variables_[i] = variantOf(arguments[i]);
            place = Variant::reference(variables_[i]);
        } else {
            place = variantOf(arguments[i]);
        }
    }
    parameters_.rgvarg = passed_.data();
    parameters_.cArgs = static_cast<UINT>(passed_.size());
    if (access == Access::Put) {
        named_.insert(named_.begin(), DISPID_PROPERTYPUT);
    }
    parameters_.rgdispidNamedArgs = named_.empty() ? nullptr : named_.data();
    parameters_.cNamedArgs = static_cast<UINT>(named_.size());
}

void PassedArguments::writeBack(const ServerSessionPtr& session) {
    VariantReader reader(session);
    FirstError error;
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        const bool referred = isReference(passed_[arguments_.size() - 1 - i]);
        if (referred) {
            error.attempt([&] {
                if (!holdsStill(variables_[i], arguments_[i])) {
                    *arguments_[i].variable() = reader.read(variables_[i]);
                }
            });
        }
    }
    error.raise();
}

void PassedArguments::tryWriteBack(const ServerSessionPtr& session) noexcept {
    try {
        writeBack(session);
    } catch (...) {
        return;
    }
}

} // namespace automation::com
