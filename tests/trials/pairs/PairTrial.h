#pragma once

#include "tests/trials/pairs/Troubles.h"
#include "tests/trials/torture/Torture.h"

namespace trials::pairs {

/// What came of an operation in which things were made to fail.
struct Aftermath {
    torture::Outcome outcome;
    Troubles::Progress struck;
    Troubles::Progress ended;
    std::vector<automation::Border> borders; ///< of its calls
};

/// Assesses how an operation went in which two troubles have struck, beside how it goes without them and with the first
/// alone: the host must get an answer that one of the two leads to.
[[nodiscard]] torture::Assessment assess(const Aftermath& both, const Aftermath& alone, const Aftermath& flawless,
                                         const std::array<Trouble, 2>& troubles, const torture::Operation& operation);

/// Makes a call or an allocation of every operation of one question fail in every way, and something of another kind
/// later in the same operation.
class PairTrial {
public:
    /// Of the calls of an operation one in `every` is made to fail first, beginning with one that `random` picks; what
    /// fails later is drawn. All must outlive this object.
    PairTrial(const language::ScenarioFile& file, const WorldMaker& makeWorld, std::size_t every, std::mt19937& random)
        : file_(file), makeWorld_(makeWorld), course_(file, makeWorld), every_(every), random_(random) {}

    void run(const torture::Audience& audience) const;

private:
    [[nodiscard]] Aftermath meet(torture::Operation operation, std::vector<Trouble> troubles) const;
    [[nodiscard]] std::size_t between(std::size_t least, std::size_t most) const;
    /// What may fail first where the n-th call does, or instead of it an allocation.
    [[nodiscard]] std::vector<Trouble> firsts(const Aftermath& flawless, std::size_t n) const;
    /// One that strikes once the first has struck; nothing where the operation has ended with that.
    [[nodiscard]] std::optional<Trouble> second(const Trouble& first, const Aftermath& alone) const;

    const language::ScenarioFile& file_;
    const WorldMaker& makeWorld_;
    Course course_;
    std::size_t every_;
    std::mt19937& random_;
};

} // namespace trials::pairs
