#pragma once

#include "automation/com/ComPtr.h"
#include "host/world/ModuleClient.h"

#include <K73053.h>

namespace host {

/// The module of the registered library, driven by the vtable of `AbstractModule`.
class VtableModule final : public ModuleClient {
public:
    /// Creates it by the name K73053.Module. Raises the system's error where it is not registered.
    VtableModule();

    void initQuestion(std::int32_t number, const std::u16string& folder, automation::ObjectPtr& application,
                      std::int32_t& window) override;
    void testePoint() override;
    [[nodiscard]] bool erreurGenerale() override;
    [[nodiscard]] std::u16string causeErreur() override;
    [[nodiscard]] bool bravoNuance() override;
    [[nodiscard]] std::vector<std::u16string> complement() override;
    void fermer() override;
    void quitter(automation::ObjectPtr& application, std::int32_t& window) override;

private:
    automation::com::ComPtr<AbstractModule> module_;
};

} // namespace host
