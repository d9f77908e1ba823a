#pragma once

#include "host/run/WorldStage.h"
#include "host/world/EmbeddedWorld.h"
#include "simulator/document/Presentation.h"
#include "tests/trials/Host.h"
#include "tests/trials/learners/Draw.h"

namespace trials::histories {

using Statements = std::vector<std::u16string>;

/// One run of PowerPoint in a world of its own, in which statements make a presentation.
class History {
public:
    /// A presentation to begin with is "C:\Deck.ppt"; none where the path is empty.
    explicit History(const std::filesystem::path& deck);

    /// False where PowerPoint refuses, or the statement is none.
    bool perform(const std::u16string& statement);
    /// The presentation in front; null where there is none.
    [[nodiscard]] simulator::PresentationPtr presentation() const;
    /// Something at random: mostly what learners do; tags, and saving, closing and opening again now and then. Answers
    /// with the statements up to the first that is refused.
    Statements anything(learners::Draw& draw);

private:
    std::unique_ptr<EmbeddedWorld> world_ = makeEmbeddedWorld();
    WorldStage stage_{*world_};
    language::Interpreter interpreter_{stage_};
};

/// A presentation's life at random, of a new one or of a deck.
[[nodiscard]] Statements anyHistory(const std::filesystem::path& deck, learners::Draw& draw);

/// The presentation that statements make; null where one is refused, or none is in front at their end.
[[nodiscard]] simulator::PresentationPtr replay(const std::filesystem::path& deck, const Statements& statements);

} // namespace trials::histories
