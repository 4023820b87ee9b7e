// The Load of the start form, which takes up the terminal's company, with each of its requests to the server refused.

#include "session/AvvioRifiutato.h"

namespace vabo {
namespace {

using support::inTurn;

// The second company of the registry is the terminal's, and gives way to the first one of the server where its number
// or its database can't be found out. The terminal's row then says so too.
TEST(AvvioLoadRifiuto, IsToldOrTheStartGoesOnWithTheCompanyThatTheTerminalsRowNames) {
    const std::string ripiegata = "silent; rows of company 1, language IT, program 1; list right; fields changed to "
                                  "About, VaBoDatiAurora, IT";
    const std::string impossibile = "told Non è possibile caricare il DataBase; rows ";
    const std::string finita = "; list right; fields changed to ended, IT";
    const std::string aperta = "; list right; fields changed to ended, VaBoDatiPonte, IT";
    replay(avvio(kLoad,
                 inTurn({{3, "told it; rows before; list right; fields changed to ended"},
                         {1, ripiegata},
                         {1, support::kStored},
                         {1, ripiegata},
                         {1, support::kStored},
                         {1, ripiegata},
                         {1, support::kStored},
                         {1, kConOpzioni},
                         {5, support::kStored},
                         {2, ripiegata},
                         {2, support::kStored},
                         {2, ripiegata},
                         {4, support::kStored}}),
                 inTurn({{3, "told it; rows before; list right; fields changed to ended"},
                         {2, impossibile + "before" + finita},
                         {1, impossibile + "of company 0, language none, program none" + finita},
                         {5, impossibile + "before" + finita},
                         {3, impossibile + "of company 2, language none, program none" + finita},
                         {5, impossibile + "of company 2, language IT, program none" + finita},
                         {6, impossibile + "of company 2, language IT, program none" + aperta}})));
}

} // namespace
} // namespace vabo
