#pragma once

#include "host/command/Story.h"

#include <nlohmann/json.hpp>

namespace host {

/// Collects a story as an array of chapters.
class JsonStory final : public Story {
public:
    void chapter(std::string_view title) override;
    void sentence(std::string_view text) override;
    void statement(std::size_t line, std::string_view text) override;
    void call(const automation::TracedCall& traced) override;

    /// `[{"chapter": …, "events": ["…", {"line": …, "statement": …}, {"call": …}]}]`
    [[nodiscard]] const nlohmann::ordered_json& chapters() const noexcept { return chapters_; }

private:
    void add(nlohmann::ordered_json event);

    nlohmann::ordered_json chapters_ = nlohmann::ordered_json::array();
};

} // namespace host
