// The other program of a test: it holds and writes rows of the same server, following commands line by line.

#include "ado/Connection.h"
#include "ado/Drivers.h"
#include "ado/Recordset.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

namespace {

class Helper {
public:
    explicit Helper(const std::string& connectionString) { connection_.Open(connectionString); }

    std::string answer(const std::string& line) {
        std::istringstream words(line);
        std::string verb, row;
        words >> verb >> row;
        try {
            return obey(verb, row);
        } catch (const ado::Error& error) {
            return "refused " + std::to_string(error.number()) + " " + error.description();
        }
    }

private:
    std::string obey(const std::string& verb, const std::string& row) {
        if (verb == "hold") {
            held_ = std::make_unique<ado::Recordset>();
            held_->Open("select * from Comuni where id = " + row, connection_, ado::CursorType::Keyset,
                        ado::LockType::Pessimistic);
            (*held_)["cap"] = "11111";
            return "held";
        }
        if (verb == "update") {
            held_->Update();
            return "updated";
        }
        if (verb == "write") {
            connection_.Execute("update Comuni set cap = '22222' where id = " + row);
            return "written";
        }
        return "unknown";
    }

    ado::Connection connection_;
    std::unique_ptr<ado::Recordset> held_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    const std::filesystem::path instances = argv[1];
    ado::setEmbeddedHome(
        {[instances] { return instances; }, [instances](std::string_view path) { return instances / path; }});
    Helper helper(argv[2]);
    std::cout << "ready" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        std::cout << helper.answer(line) << std::endl;
    }
    return 0;
}
