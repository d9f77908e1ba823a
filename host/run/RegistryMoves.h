#pragma once

#include "automation/MemberTable.h"
#include "host/world/Registry.h"

namespace host {

/// `Registry`: the learner's registry. Keys are named by their path below HKEY_CURRENT_USER.
///
///     Registry.Deny "SOFTWARE\Microsoft\Office\11.0\Common\General"     the key cannot be opened any more
///     Registry.Allow "SOFTWARE\Microsoft\Office\11.0\Common\General"    it can again
///     Registry.Text("SOFTWARE\Microsoft\Office\11.0\Common\General", "UserTemplates") = "D:\Modeles"
///     Registry.Delete "SOFTWARE\Microsoft\Office\11.0\Common\General", "UserTemplates"
///     Registry.RecentFolder("Default") = "D:\"                          one of PowerPoint's four folder settings
///     expect Registry.RecentFolder("PictureDir") = ""
///     Registry.SetMeasurementSystem "1"                                 "0" metric, "1" U.S., "" not readable
class RegistryMoves final : public automation::Published {
public:
    /// `registry` must outlive this object.
    explicit RegistryMoves(Registry& registry) noexcept : registry_(registry) {}

    void deny(const std::u16string& key) { registry_.deny(key, true); }
    void allow(const std::u16string& key) { registry_.deny(key, false); }
    [[nodiscard]] std::u16string text(const std::u16string& key, const std::u16string& name);
    void setText(const std::u16string& key, const std::u16string& name, const std::u16string& text);
    void remove(const std::u16string& key, const std::u16string& name);
    [[nodiscard]] std::u16string recentFolder(const std::u16string& name);
    void setRecentFolder(const std::u16string& name, const std::u16string& folder);
    void setMeasurementSystem(const std::u16string& system) { registry_.setMeasurementSystem(system); }

    [[nodiscard]] std::u16string className() const override { return u"Registry"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    Registry& registry_;
};

} // namespace host
