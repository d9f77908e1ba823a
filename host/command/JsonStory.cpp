#include "host/command/JsonStory.h"

#include "automation/Text.h"

namespace host {

using automation::toUtf8;
using nlohmann::ordered_json;

void JsonStory::chapter(std::string_view title) {
    chapters_.push_back({{"chapter", title}, {"events", ordered_json::array()}});
}

void JsonStory::add(ordered_json event) {
    if (chapters_.empty()) {
        chapter("");
    }
    chapters_.back()["events"].push_back(std::move(event));
}

void JsonStory::sentence(std::string_view text) {
    add(text);
}

void JsonStory::statement(std::size_t line, std::string_view text) {
    add({{"line", line}, {"statement", text}});
}

void JsonStory::call(const automation::TracedCall& traced) {
    add({{"border", toUtf8(nameOf(traced.border))},
         {"call", toUtf8(traced.call)},
         {"outcome", toUtf8(traced.outcome)},
         {"failed", traced.failed},
         {"nanoseconds", traced.time.count()}});
}

} // namespace host
