#pragma once

#include "host/play/Desk.h"
#include "host/play/Gate.h"
#include "host/play/Seat.h"

namespace host {

/// Serves the page of an exercise and what it asks for, until the page is closed or the user interrupts the program.
class Player {
public:
    /// `desk` must outlive this object.
    explicit Player(Desk& desk);

    /// The address of the page.
    [[nodiscard]] std::string address() const { return gate_.address(); }
    void run() { server_.run(); }

private:
    [[nodiscard]] HttpResponse answer(const HttpRequest& request);
    [[nodiscard]] HttpResponse obey(const std::string& name, const nlohmann::json& body);
    [[nodiscard]] HttpResponse seat(const std::string& name);

    Desk& desk_;
    HttpServer server_;
    Gate gate_;
    Seat seat_;
};

} // namespace host
