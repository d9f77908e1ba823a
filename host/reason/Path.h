#pragma once

#include "automation/Value.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Why a host reads what it reads, and what a delivered presentation lacks, told by PowerPoint's objects.
namespace host::reason {

/// A member on the way from the application to a value, with its arguments.
struct Step {
    std::u16string member;
    std::vector<automation::Value> arguments;

    friend bool operator==(const Step&, const Step&) = default;
};

/// The way from the application to an object or a value, as a macro would state it: `Slides(1).Shapes(4).Width`.
class Path {
public:
    /// The way one member further. The item of a collection is told of the collection itself, as macros do.
    [[nodiscard]] Path to(std::u16string_view member, std::vector<automation::Value> arguments = {}) const;

    /// The collection that the last step takes an item of.
    [[nodiscard]] Path collection() const;
    /// What holds the last member.
    [[nodiscard]] Path owner() const;
    /// The name of the last member; empty for the application itself.
    [[nodiscard]] std::u16string_view member() const noexcept;
    /// The number by which the last step takes an item of a collection; 0 where it takes none.
    [[nodiscard]] std::int32_t item() const;

    /// What else is said of a shape on the way, ` (ZOR4)`.
    using Surname = std::function<std::string(const Path& shape)>;

    /// The place in the presentation: `slide 1, shape 4`; empty where there is none on the way.
    [[nodiscard]] std::string place(const Surname& surname = nullptr) const;
    /// What is behind that place: `Fill.ForeColor.RGB`; empty where the way ends at it.
    [[nodiscard]] std::string behind() const;
    /// The two as one: `slide 1, shape 4: Width`.
    [[nodiscard]] std::string display() const;

    /// The way up to its last shape or item of a group; empty where it leads past none.
    [[nodiscard]] Path shape() const;
    /// The way up to the shape that stands on the slide itself, or to the slide; empty where it leads past none.
    ///@{
    [[nodiscard]] Path topShape() const { return upTo(u"Shapes"); }
    [[nodiscard]] Path slide() const { return upTo(u"Slides"); }
    ///@}
    [[nodiscard]] bool isEmpty() const noexcept { return steps_.empty(); }
    /// True where this way begins with all of that one.
    [[nodiscard]] bool isBelow(const Path& other) const;

    friend bool operator==(const Path&, const Path&) = default;
    /// For tables of ways.
    struct Hash {
        [[nodiscard]] std::size_t operator()(const Path& path) const;
    };

private:
    [[nodiscard]] Path first(std::size_t steps) const;
    /// The way up to the item of a collection of this name.
    [[nodiscard]] Path upTo(std::u16string_view collection) const;
    /// How many steps lead to the place.
    [[nodiscard]] std::size_t stepsToPlace() const;

    std::vector<Step> steps_;
};

} // namespace host::reason
