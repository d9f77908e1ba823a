#include "module/Entry.h"

#include "platform/ErrorReport.h"

#include <atomic>

namespace k73053 {

namespace {

std::atomic<bool>& isRunning() noexcept {
    static std::atomic<bool> running = false;
    return running;
}

} // namespace

Entry::Entry(std::u16string_view operation) {
    if (isRunning().exchange(true)) {
        platform::reporting(u"Module", operation, platform::ReportedObject::Description, [] {
            throw automation::Error(automation::remote::retryLater, u"K73053",
                                    u"Le filtre de messages a indiqué que l'application est occupée.");
        });
    }
}

Entry::~Entry() {
    isRunning() = false;
}

} // namespace k73053
