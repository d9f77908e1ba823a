#pragma once

#include "automation/Object.h"
#include "automation/com/ServerSession.h"
#include "automation/com/Variant.h"

#include <span>
#include <vector>

namespace automation::com {

/// The arguments of one call to an IDispatch, in its order (the last one first).
class PassedArguments {
public:
    /// Those passed by reference refer to variables held here. `named` has the ids of the last arguments but for the
    /// new value of a property.
    PassedArguments(std::span<Value> arguments, Access access, std::span<const DISPID> named = {});

    [[nodiscard]] DISPPARAMS& parameters() noexcept { return parameters_; }

    /// Writes what the callee left in by-reference arguments to the variables behind them; objects left alone stay what
    /// they were. Raises the error of the first that cannot be read, after all others were written.
    void writeBack(const ServerSessionPtr& session);
    /// The same where the callee has raised: its error is the one that counts.
    void tryWriteBack(const ServerSessionPtr& session) noexcept;

private:
    std::span<Value> arguments_;
    std::vector<Variant> variables_; ///< contents of the by-reference arguments, in the order of `arguments_`
    std::vector<Variant> passed_;
    DISPPARAMS parameters_{};
    std::vector<DISPID> named_; ///< the last one first
};

} // namespace automation::com
