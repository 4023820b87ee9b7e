#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace provision {

/// What is to be created. Equal plans give the same rows, byte for byte.
struct Plan {
    std::filesystem::path driveC; ///< the folder used as drive C; created where it is missing
    std::string terminal;         ///< the terminal's name as the console writes it, with underscores for punctuation
    long ledgerRows = 20000;      ///< of the first company; a tenth of it in the second. 0, or at least 2
    long accounts = 0;            ///< grows each chart to at least this many accounts; 0 leaves the chart as it is
};

enum class Outcome { Made, AlreadyThere };

/// A plan that can't be carried out: the folder wasn't made by this program, or with other values. The text is for the
/// user.
class Refused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Creates a workstation: drive C with its pointer files, one instance that is both server and local instance, the
/// registry of companies, two companies with their data, and their local files. A finished workstation of the same plan
/// isn't changed; an unfinished one is made again. Throws Refused, std::filesystem::filesystem_error and engine::Error.
Outcome layDown(const Plan& plan);

/// The name of the instance: terminal, "\sqlexpress".
std::string serverName(std::string_view terminal);

inline constexpr std::string_view kServerUser = "sa";
inline constexpr std::string_view kServerPassword = "Campione-2024";
inline constexpr std::string_view kFirstDatabase = "VaBoDatiAurora";
inline constexpr std::string_view kSecondDatabase = "VaBoDatiPonte";

} // namespace provision
