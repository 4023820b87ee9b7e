// vabo-provision: creates a sample workstation, to try the console and to measure it.

#include "kit/PulisciNome.h"
#include "os/Paths.h"
#include "platform/Workstation.h"
#include "provision/Provision.h"

#include <charconv>
#include <cstdio>
#include <exception>
#include <span>
#include <string>
#include <string_view>

namespace {

constexpr const char* kHelp = R"(Usage: vabo-provision <folder> [--terminal NAME] [--ledger N] [--accounts N]

Lays a sample workstation down in the folder that stands for drive C: pointer
files, an embedded server with two companies, and their data. A folder that has
been laid down with the same values is left as it is.

  --terminal NAME  name of the terminal (default: this machine's)
  --ledger N       rows in the ledger of the first company, a tenth of it in the
                   second (default: 20000)
  --accounts N     accounts in each chart, at least (default: the standard chart)
  --help           this text

Start the console with VABO_DRIVE_C set to the folder. Users of both companies:
  amministratore   password primavera
  contabile        password estate24
  nuovo_utente     chooses a password at the first login
  disabilitato     password autunno, shut out
)";

class Usage : public provision::Refused {
public:
    using provision::Refused::Refused;
};

long number(std::string_view option, std::string_view text) {
    long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw Usage(std::string(option) + " needs a number, not '" + std::string(text) + "'");
    }
    return value;
}

provision::Plan planOf(std::span<char* const> arguments) {
    provision::Plan plan;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        const auto value = [&]() -> std::string_view {
            if (++index == arguments.size()) {
                throw Usage(std::string(argument) + " needs a value");
            }
            return arguments[index];
        };
        if (argument == "--terminal") {
            plan.terminal = value();
        } else if (argument == "--ledger") {
            plan.ledgerRows = number(argument, value());
        } else if (argument == "--accounts") {
            plan.accounts = number(argument, value());
        } else if (argument.starts_with("-") || !plan.driveC.empty()) {
            throw Usage("unknown argument '" + std::string(argument) + "'");
        } else {
            plan.driveC = os::pathOf(argument);
        }
    }
    if (plan.driveC.empty()) {
        throw Usage("no folder is given");
    }
    if (plan.terminal.empty()) {
        platform::takeRealWorkstation();
        plan.terminal = platform::workstation().machineName;
    }
    vabo::PulisciNome(plan.terminal);
    return plan;
}

int layDown(std::span<char* const> arguments) {
    const provision::Plan plan = planOf(arguments);
    const bool made = provision::layDown(plan) == provision::Outcome::Made;
    std::printf("%s: %s, server %s\n", os::utf8Of(plan.driveC).c_str(),
                made ? "laid down" : "already laid down, nothing changed",
                provision::serverName(plan.terminal).c_str());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::span<char* const> arguments(argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0));
    for (const std::string_view argument : arguments) {
        if (argument == "--help") {
            std::fputs(kHelp, stdout);
            return 0;
        }
    }
    try {
        return layDown(arguments);
    } catch (const Usage& error) {
        std::fprintf(stderr, "vabo-provision: %s\nTry --help.\n", error.what());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vabo-provision: %s\n", error.what());
    }
    return 1;
}
