#pragma once

#include "automation/MemberTable.h"

#include <string>
#include <vector>

namespace collections {

/// The complementary texts of a check, in the order in which the question added them. The host reads them through its
/// own interface as `add`, `count` and `item`; the class provides these under its own name and an underscore.
class ComplementInfo final : public automation::Published {
public:
    /// Appends a text; the second argument is accepted and ignored. Raises Overflow (6) when the 32-bit count is full.
    void add(const std::u16string& text, std::int32_t ignored);
    /// Number of texts.
    [[nodiscard]] std::int32_t count() const noexcept;
    /// The text at a 1-based index; raises SubscriptOutOfRange (9) outside 1 to `count`.
    [[nodiscard]] std::u16string item(std::int32_t index) const;

    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    std::vector<std::u16string> texts_;
};

} // namespace collections
