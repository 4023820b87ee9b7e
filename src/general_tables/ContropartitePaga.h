#pragma once

// The counter-accounts of a pay slip, one row of TipoAnagraficaCPartite for each type of subject, without a screen.

#include <array>
#include <cstddef>
#include <string>

namespace vabo {

/// One of the accounts of a row. The last two are written to other columns than they are read from.
struct Contropartita {
    int mastro;          ///< of the accounts on offer
    const char* letta;   ///< the column that it is read from
    const char* scritta; ///< the column that it is written to
    const char* gruppo;  ///< the column with a copy of its group, null where there is none
};

inline constexpr std::array<Contropartita, 9> kContropartite = {{
    {2, "IdIrpef", "IdIrpef", nullptr},
    {2, "IdIrpefReg", "IdIrpefReg", nullptr},
    {2, "IdIrpefCom", "IdIrpefCom", nullptr},
    {2, "IdInpsP", "IdInpsP", nullptr},
    {2, "IdInailP", "IdInailP", nullptr},
    {4, "IdCInpsE", "IdCInpsE", "IdGInpsE"},
    {4, "IdCInailE", "IdCInailE", "IdGInailE"},
    {4, "IdCIrapE", "IdCAltriFondiE", "IdGAltriFondiE"},
    {2, "IdIrapP", "IdAltriFondiP", nullptr},
}};

/// How many, from the first one, are written to the column that they are read from.
inline constexpr std::size_t kLetteDoveScritte = 7;

using ContiPaga = std::array<double, kContropartite.size()>;

/// The accounts of a master that may be picked.
std::string ElencoContropartite(int mastro);
/// The types of subject with a row of accounts, with what is read of it.
std::string ElencoTipiConContropartite();

/// Writes a type's accounts and their groups, and clears the columns that the last two are read from. A row that isn't
/// there, or can't be opened, raises; what fails after that is skipped, a single column too.
void ScriviContropartite(double tipo, const ContiPaga& conti);

} // namespace vabo
