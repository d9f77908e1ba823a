#include "host/play/Player.h"

#include "host/play/PageFile.h"

#include <array>

namespace host {

namespace {

using nlohmann::json;

constexpr const char* jsonType = "application/json";

HttpResponse answered(const json& body, int status = 200) {
    return {status, jsonType, body.dump(-1, ' ', false, json::error_handler_t::replace)};
}

HttpResponse page(const std::string& name) {
    struct Type {
        std::string_view ending;
        const char* type;
    };
    constexpr auto types =
        std::to_array<Type>({{".html", "text/html"}, {".css", "text/css"}, {".js", "text/javascript"}});
    const PageFile* const file = findPageFile(name.empty() ? "index.html" : name);
    if (file == nullptr) {
        return {404, "text/plain", "There is no such page.\n"};
    }
    const auto* const found =
        std::find_if(types.begin(), types.end(), [&](const Type& each) { return file->name.ends_with(each.ending); });
    return {200, found == types.end() ? "application/octet-stream" : found->type, std::string(file->content)};
}

/// What a page may ask of the exercise; each answers with what there is to say beside the state.
struct Order {
    std::string_view name;
    std::string (*obey)(Desk& desk, const json& body);
};

constexpr std::array orders{
    Order{"state", [](Desk&, const json&) { return std::string(); }},
    Order{"do",
          [](Desk& desk, const json& body) {
              desk.perform(body.at("statements").get<std::vector<std::string>>());
              return std::string();
          }},
    Order{"say", [](Desk& desk, const json& body) { return desk.say(body.at("line").get<std::string>()); }},
    Order{"check", [](Desk& desk, const json&) { return desk.check(), std::string(); }},
    Order{"undo", [](Desk& desk, const json&) { return desk.undo(), std::string(); }},
    Order{"reset", [](Desk& desk, const json&) { return desk.reset(), std::string(); }},
    Order{"open", [](Desk& desk,
                     const json& body) { return desk.open(body.at("question").get<std::int32_t>()), std::string(); }},
    Order{"save",
          [](Desk& desk, const json& body) {
              return desk.save(body.at("file").get<std::string>(), body.at("title").get<std::string>());
          }},
};

} // namespace

Player::Player(Desk& desk)
    : desk_(desk), server_([this](const HttpRequest& request) { return answer(request); }), gate_(server_.port()) {
    server_.onTick([this] {
        if (seat_.isDeserted()) {
            server_.stop();
        }
    });
}

HttpResponse Player::answer(const HttpRequest& request) {
    if (auto refusal = gate_.refusal(request)) {
        return std::move(*refusal);
    }
    const std::string name = gate_.nameIn(request);
    if (request.method == "GET") {
        return page(name);
    }
    try {
        return obey(name, json::parse(request.body));
    } catch (const json::exception& error) {
        return answered({{"error", std::string("The request is malformed: ") + error.what()}}, 400);
    }
}

HttpResponse Player::seat(const std::string& name) {
    const auto taken = name == "join" ? seat_.take() : std::optional(seat_.takeOver());
    return taken ? answered({{"seat", *taken}})
                 : answered({{"error", "The exercise is being played in another tab."}}, 409);
}

HttpResponse Player::obey(const std::string& name, const json& body) {
    if (name == "join" || name == "take") {
        return seat(name);
    }
    const auto holder = body.at("seat").get<std::string>();
    if (!seat_.holds(holder)) {
        return answered({{"error", "The exercise is being played in another tab."}}, 409);
    }
    if (name == "beat" || name == "leave") {
        if (name == "leave") {
            seat_.leave(holder);
        }
        return answered(json::object());
    }
    const auto* const order =
        std::find_if(orders.begin(), orders.end(), [&](const Order& each) { return each.name == name; });
    if (order == orders.end()) {
        return answered({{"error", "There is no such request."}}, 404);
    }
    json answer;
    try {
        answer["said"] = order->obey(desk_, body);
    } catch (const json::exception&) {
        throw;
    } catch (const automation::Error& error) {
        answer["error"] = inWords(error);
    } catch (const std::exception& error) {
        answer["error"] = error.what();
    }
    answer["state"] = desk_.state();
    return answered(answer);
}

} // namespace host
