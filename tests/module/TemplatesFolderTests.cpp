#include "host/world/TemporaryFolder.h"
#include "module/TemplatesFolder.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

namespace templates_folder_tests {

using platform::Registry;

constexpr std::u16string_view generalKey = u"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General";

TEST(TemplatesFolder, IsTheLearnersOwnWhereThereIsOne) {
    const std::u16string ordinary =
        u"c:\\documents and settings\\eleve\\application data\\Microsoft\\modèles\\ZOR Modèles\\";
    const std::u16string nul(1, u'\0');
    const std::vector<std::pair<std::u16string, std::u16string>> cases = {
        {u"D:\\Mes Modèles" + nul, u"d:\\mes modèles\\ZOR Modèles\\"},
        {u"D:\\Mes Modèles\\" + nul, u"d:\\mes modèles\\ZOR Modèles\\"},
        {u"D:\\ZOR Modèles" + nul, u"d:\\zor modèles"},
        {u"D:\\A" + nul + u"B" + nul, u"d:\\ab\\ZOR Modèles\\"},
        {u"D:\\Cut", u"d:\\cu\\ZOR Modèles\\"},
        {nul + nul + nul, ordinary},
        {u"", ordinary},
    };
    const host::TemporaryFolder root;
    simulator::Machine machine(root.path());
    machine.setRegistryText(generalKey, u"UserTemplates", u"");
    machine.setRegistryText(generalKey, u"Vignettes", u"");
    Registry& registry = machine.services().registry;
    for (const auto& [data, expected] : cases) {
        const platform::OpenKey key(registry, generalKey, Registry::queryAndSet);
        ASSERT_TRUE(key.set(u"UserTemplates", data + u"x", data.size())); // no NUL follows
        EXPECT_EQ(k73053::templatesFolder(registry), expected);
    }
    struct ReadOnly final : automation::Observer {
        automation::Value around(const automation::Crossing& crossing, const Next& next) override {
            if (crossing.display().find(u"General\", 3") != std::u16string::npos) {
                automation::raise(automation::RunTimeError::PathAccess);
            }
            return next();
        }
    };
    const platform::ObservedServices observed(machine.services(), std::make_shared<ReadOnly>());
    EXPECT_EQ(errorNumber([&] { static_cast<void>(k73053::templatesFolder(observed.services().registry)); }),
              static_cast<std::int32_t>(0x800403E8U));
    machine.deleteRegistryValue(generalKey, u"UserTemplates");
    EXPECT_EQ(k73053::templatesFolder(registry), ordinary);
}

} // namespace templates_folder_tests
