#pragma once

#include "engine/run/Session.h"
#include "provision/Provision.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace provision {

/// One of the sample companies: its row in the registry, and what its database is filled with.
struct Company {
    std::string_view name, database;
    std::string_view localFile; ///< the name of its file in the folder of local files
    std::string_view script;    ///< the script with its own rows
    bool grown;                 ///< whether its database has the columns of later versions
    long ledgerShare;           ///< it gets the plan's number of ledger rows divided by this
    std::uint64_t seed;
};

const std::array<Company, 2>& companies();

/// The path of a company's data file on the server.
std::string dataFile(const Company& company);

/// Fills an empty company database: tables, fixed rows, states, accounts and ledger.
void fillCompany(engine::Session& session, const Company& company, const Plan& plan);

/// Creates the tables of the registry and adds the companies with that server. No terminal is added: the program adds
/// it when a company is first taken up there.
void fillRegistry(engine::Session& session, std::string_view server);

} // namespace provision
