#include "automation/com/ClientVariable.h"

#include "automation/com/Variant.h"

namespace automation::com {

ClientVariable::ClientVariable(const VARIANT& reference, Value value)
    : reference_(reference), value_(std::move(value)) {
    remember();
}

void ClientVariable::writeBack() {
    if (!isWritten()) {
        assign(reference_, value_);
        remember();
    }
}

void ClientVariable::follow() noexcept {
    try {
        writeBack();
    } catch (...) {
        return; // tried again, and told, when the call ends
    }
}

bool ClientVariable::isWritten() const {
    if (written_) {
        return value_ == *written_;
    }
    return value_.isObject() && !writtenObject_.owner_before(value_.as<ObjectPtr>()) &&
           !value_.as<ObjectPtr>().owner_before(writtenObject_);
}

void ClientVariable::remember() {
    if (value_.isObject()) {
        written_.reset();
        writtenObject_ = value_.as<ObjectPtr>();
    } else {
        written_ = value_;
    }
}

} // namespace automation::com
