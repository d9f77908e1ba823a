#pragma once

#include "automation/observe/Observer.h"
#include "host/reason/Path.h"

#include <map>
#include <optional>

namespace host::reason {

/// A value that the module has read, or a call that failed.
struct Access {
    automation::Border border = automation::Border::Automation;
    Path path;                        ///< to the value; for the system the service and its member
    automation::Value value;          ///< empty where it failed
    std::optional<std::string> error; ///< what it raised, in words

    /// True where the identity was read that the module has given to a slide or a shape.
    [[nodiscard]] bool isMark() const;
};

/// A slide or a shape with the identity that it bears; empty for none.
struct Mark {
    Path bearer;
    std::string identity;
};

/// Follows what the module reads, each value with its way from the application, however the module keeps objects.
class Trail final : public automation::Observer {
public:
    /// Calls pass through the other observer, too, where there is one.
    explicit Trail(automation::ObserverPtr other = nullptr) : other_(std::move(other)) {}

    automation::Value around(const automation::Crossing& crossing, const Next& next) override;

    /// A question is being prepared: the marks given from now on are those of its presentation.
    void prepare() { given_.clear(); }
    /// A check begins.
    void begin() { accesses_.clear(); }

    /// What the module has read since the check began, in order.
    [[nodiscard]] const std::vector<Access>& accesses() const noexcept { return accesses_; }
    /// The marks read since then, each bearer once.
    [[nodiscard]] std::vector<Mark> marks() const;
    /// The marks that the module has given.
    [[nodiscard]] const std::vector<Mark>& given() const noexcept { return given_; }

private:
    [[nodiscard]] Path pathOf(const automation::Crossing& crossing) const;

    automation::ObserverPtr other_;
    std::map<const automation::Object*, Path> origins_; ///< of what was handed out last at each address
    std::vector<Access> accesses_;
    std::vector<Mark> given_;
};

} // namespace host::reason
