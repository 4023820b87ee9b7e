// Another process with a session of its own. Each line it reads is a statement, or `hold` and a SELECT; it writes one
// line when that is done: the error's number, 0 for none.

#include "engine/run/Session.h"
#include "engine/store/Instance.h"

#include <iostream>
#include <string>

namespace {

int run(engine::Session& session, const std::string& text, std::unique_ptr<engine::RowHold>& hold) {
    const std::string verb = "hold ";
    try {
        if (text.starts_with(verb)) {
            hold = session.hold(text.substr(verb.size()));
            return 0;
        }
        const auto batch = session.execute(text);
        while (batch->nextResult()) {
            while (batch->nextRow()) {
            }
        }
        return 0;
    } catch (const engine::Error& error) {
        return error.number();
    }
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "usage: engine_session_helper <instance> <database>\n";
        return 2;
    }
    const auto instance = engine::Instance::open(arguments[1], {});
    const auto session = engine::Session::open(instance, {"", "", arguments[2]});
    std::unique_ptr<engine::RowHold> hold;
    std::string line;
    while (std::getline(std::cin, line)) {
        std::cout << run(*session, line, hold) << std::endl;
    }
    return 0;
}
