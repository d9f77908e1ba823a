#pragma once

#include "automation/Object.h"
#include "automation/Unmoved.h"

#include <string>
#include <vector>

namespace host {

/// The module as a training host holds it: the eight operations of `AbstractModule`. Every one raises what the module
/// raises.
class ModuleClient : automation::Unmoved {
public:
    virtual ~ModuleClient() = default;

    /// Application and window are written back, also where the operation raises.
    virtual void initQuestion(std::int32_t number, const std::u16string& folder, automation::ObjectPtr& application,
                              std::int32_t& window) = 0;
    virtual void testePoint() = 0;
    [[nodiscard]] virtual bool erreurGenerale() = 0;
    [[nodiscard]] virtual std::u16string causeErreur() = 0;
    [[nodiscard]] virtual bool bravoNuance() = 0;
    [[nodiscard]] virtual std::vector<std::u16string> complement() = 0;
    virtual void fermer() = 0;
    virtual void quitter(automation::ObjectPtr& application, std::int32_t& window) = 0;
};

} // namespace host
