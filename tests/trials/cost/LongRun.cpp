#include "tests/trials/cost/LongRun.h"

#include "host/run/FirstMoves.h"

namespace trials::cost {

std::vector<Holding> longRun(const std::vector<BuiltCourse>& courses, std::size_t questions,
                             const WorldMaker& makeWorld, const std::function<void(std::size_t)>& onQuestion) {
    constexpr std::size_t looks = 10;
    const std::size_t between = std::max<std::size_t>(questions / looks, 1);
    const WorldPtr world = makeWorld(nullptr);
    Witness nobody;
    automation::ObjectPtr application;
    std::int32_t window = TrainingHost::unknownWindow;
    std::vector<Holding> holdings;
    for (std::size_t done = 1; done <= questions; ++done) {
        onQuestion(done);
        const BuiltCourse& next = courses[(done - 1) % courses.size()];
        TrainingHost host(*world, next.course, next.file.question, nobody);
        host.application = application;
        host.window = window;
        host.initQuestion(next.file.question, world->hostFolder());
        performFirstMoves(next.file, *world, host);
        static_cast<void>(host.check());
        host.fermer();
        application = host.application;
        window = host.window;
        if (done % between == 0) {
            holdings.push_back({done, processUse(), automation::Object::alive(), {}});
        }
    }
    if (!holdings.empty()) {
        holdings.back().leftOpen = world->leftOpen();
    }
    return holdings;
}

} // namespace trials::cost
