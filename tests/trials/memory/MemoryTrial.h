#pragma once

#include "tests/trials/memory/ScarceMemory.h"
#include "tests/trials/torture/Torture.h"

namespace trials::memory {

/// Makes every allocation of every operation of one question fail, and of opening and saving its presentation, each
/// once and from there on to the end of the operation. The module and PowerPoint share one process here, and its
/// memory.
class MemoryTrial {
public:
    /// Of the allocations of an operation one in `every` is made to fail, beginning with one that `random` picks. All
    /// must outlive this object.
    MemoryTrial(const language::ScenarioFile& file, const WorldMaker& makeWorld, std::size_t every,
                std::mt19937& random)
        : file_(file), makeWorld_(makeWorld), course_(file, makeWorld), every_(every), random_(random) {}

    void run(const torture::Audience& audience) const;

private:
    /// What came of an operation, and how many allocations it has asked for.
    struct Result {
        torture::Assessment assessment;
        std::size_t asked = 0;
    };
    /// An operation in which an allocation fails; none where its position is 0.
    using Struck = std::function<Result(std::size_t position, ScarceMemory::Lasting lasting)>;

    void run(const std::string& operation, const Struck& struck, const torture::Audience& audience) const;

    const language::ScenarioFile& file_;
    const WorldMaker& makeWorld_;
    Course course_;
    std::size_t every_;
    std::mt19937& random_;
};

} // namespace trials::memory
