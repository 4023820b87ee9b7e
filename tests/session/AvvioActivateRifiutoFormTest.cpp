// The Activate of the start form, which prepares the server, with each of its requests to the server refused.

#include "session/AvvioRifiutato.h"

namespace vabo {
namespace {

using support::inTurn;

// The console takes the company up once more, and ends the process where nothing of it can be reached.
TEST(AvvioActivateRifiuto, IsSkippedAndTheLoginComesOrTheConsoleWhereTheUsersCanNotBeRead) {
    const std::string senzaProgramma = "silent; rows of company 2, language IT, program none; list right; fields done";
    const std::string impossibile = "told Non è possibile caricare il DataBase; rows ";
    const std::string aperta = "; list right; fields changed to ended, VaBoDatiPonte, IT";
    replay(avvio(kActivate,
                 inTurn({{1, support::kStored},
                         {1, kConOpzioni},
                         {6, support::kStored},
                         {1, kConOpzioni},
                         {1, support::kStored},
                         {1, senzaProgramma},
                         {1, kConOpzioni},
                         {4, senzaProgramma},
                         {1, support::kStored},
                         {1, kConOpzioni},
                         {3, support::kStored},
                         {1, "silent; rows done; list right; fields changed to Avvio_Azienda, VaBoDatiPonte, IT"}}),
                 inTurn({{16, impossibile + "of company 2, language IT, program none" + aperta},
                         {6, impossibile + "done" + aperta}})));
}

} // namespace
} // namespace vabo
