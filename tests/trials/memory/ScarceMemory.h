#pragma once

#include "automation/Error.h"
#include "automation/Unmoved.h"

#include <cstddef>
#include <optional>

namespace trials {

/// For the length of a scope, an allocation by `new` on this thread fails.
class ScarceMemory : automation::Unmoved {
public:
    enum class Lasting : std::uint8_t { Once, FromThereOn };

    /// `position` counts from 1; at 0 none fails.
    explicit ScarceMemory(std::size_t position, Lasting lasting = Lasting::Once) noexcept;
    ~ScarceMemory();

    /// Allocations asked for in the last scope, until now or its end.
    [[nodiscard]] static std::size_t asked() noexcept;
    /// True where one of them has failed.
    [[nodiscard]] static bool hasStruck() noexcept;
    /// Allocations by this thread that have not been given back.
    [[nodiscard]] static std::ptrdiff_t alive() noexcept;
};

/// For the length of a scope within such a one, there is memory, and what is allocated does not count.
class PlentyOfMemory : automation::Unmoved {
public:
    PlentyOfMemory() noexcept;
    ~PlentyOfMemory();

private:
    bool wasOver_;
};

/// How a step went in which memory was scarce.
struct ScarceStep {
    std::size_t asked = 0; ///< allocations
    bool hasStruck = false;
    std::optional<automation::Error> error; ///< what it raised, in words found once memory was there again

    template <typename Step> ScarceStep(std::size_t position, ScarceMemory::Lasting lasting, const Step& step) {
        std::exception_ptr raised;
        {
            const ScarceMemory scarce(position, lasting);
            try {
                step();
            } catch (...) {
                raised = std::current_exception();
            }
        }
        // NOLINTBEGIN(cppcoreguidelines-prefer-member-initializer): what is known once the step has been taken
        asked = ScarceMemory::asked();
        hasStruck = ScarceMemory::hasStruck();
        // NOLINTEND(cppcoreguidelines-prefer-member-initializer)
        if (raised) {
            try {
                std::rethrow_exception(raised);
            } catch (...) {
                error = automation::currentError();
            }
        }
    }
};

} // namespace trials
