#pragma once

#include "automation/LateBound.h"
#include "automation/observe/Observer.h"
#include "host/world/ModuleClient.h"

namespace host {

/// A module reached late-bound, each operation by its name.
class LateBoundModule final : public ModuleClient {
public:
    /// The module's calls to the application that the host brings pass through `observer`, where one is given.
    explicit LateBoundModule(automation::ObjectPtr module, automation::ObserverPtr observer = nullptr) noexcept
        : module_(std::move(module)), observer_(std::move(observer)) {}

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
    automation::LateBound module_;
    automation::ObserverPtr observer_;
};

} // namespace host
