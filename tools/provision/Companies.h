#pragma once

#include "engine/run/Session.h"
#include "provision/Provision.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace provision {

/// One of the sample companies: how it stands in the registry, and what its database is filled from.
struct Company {
    std::string_view name, database;
    std::string_view localFile; ///< its Jet file, a name alone: the file itself is never made
    std::string_view script;    ///< its own rows
    bool grown;                 ///< whether its database has the columns that came later
    long ledgerShare;           ///< one row in so many of the plan's
    std::uint64_t seed;
};

const std::array<Company, 2>& companies();

/// Where the data file of a company lies on the server.
std::string dataFile(const Company& company);

/// Fills an empty company database: tables, fixed rows, states, accounts and ledger.
void fillCompany(engine::Session& session, const Company& company, const Plan& plan);

/// Makes the tables of the registry and enters the companies, to be reached on that server. No terminal is entered: a
/// terminal enters itself when it first takes up a company.
void fillRegistry(engine::Session& session, std::string_view server);

} // namespace provision
