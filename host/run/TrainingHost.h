#pragma once

#include "host/run/Course.h"
#include "host/run/Witness.h"

namespace host {

/// The host of a training course: it delivers the course's files, drives the module and keeps, from one question to the
/// next, the PowerPoint and the window handle that the module gives back.
class TrainingHost {
public:
    static constexpr std::int32_t unknownWindow = -1;

    /// All must outlive this object. The course's files for the question are delivered at once.
    TrainingHost(World& world, const Course& course, std::int32_t question, Witness& witness);

    /// Puts the course's files for a question into the host's folder.
    void deliver(std::int32_t question);
    /// Delivers the question's files where they have not been since the last InitQuestion, and begins it.
    void initQuestion(std::int32_t question, const std::u16string& folder);
    /// One TestePoint with what the host reads then; what the module raises stands in the reading.
    [[nodiscard]] Reading check();
    /// One TestePoint; raises what the module raises.
    void testePoint();
    void fermer();
    void quitter();
    /// Its process is killed, whatever it was about.
    void kill();
    /// What a host does at the end: closes the question that has been begun, and leaves the module, where the one or
    /// the other has not been done yet.
    void finish();

    [[nodiscard]] std::int32_t question() const noexcept { return question_; }
    [[nodiscard]] World& world() noexcept { return world_; }
    /// What the last check read; empty where there was none.
    [[nodiscard]] const Reading& lastReading() const noexcept { return lastReading_; }

    automation::ObjectPtr application; ///< the PowerPoint passed to the module; null for none
    std::int32_t window = unknownWindow;

private:
    template <typename Operation> void call(HostCall name, const Operation& operation);
    [[nodiscard]] Reading read();

    World& world_;
    const Course& course_;
    std::int32_t question_;
    Witness& witness_;
    std::int32_t delivered_ = 0; ///< the question whose files lie ready
    bool isOpen_ = false;        ///< a question has been begun and not closed
    Reading lastReading_;
    bool isLeft_ = true; ///< nothing has been asked of the module since it was left
};

} // namespace host
