// A company that gives way to the first one of the server, with each request to the server refused.

#include "session/ApriAzienda.h"
#include "session/ProgrammaRifiutato.h"

namespace vabo {
namespace {

using support::inTurn;

/// Without a form: what the program takes up is compared with the terminal's row.
class Ripiego : public Programma {
public:
    /// With a local server that nobody reaches: the language has replays of its own.
    void prepara() const {
        workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
        drop(support::kOtherCompany);
        NomeTerminale = support::kTerminalName;
    }
    void apri(double numero) {
        esegui([&] { ApriAzienda(numero); });
    }
    /// As the login does it.
    void reopen() {
        AzzeraVariabili();
        NomeTerminale = support::kTerminalName;
        apri(0);
        EXPECT_FALSE(finito());
        EXPECT_EQ(NomeDatabase, support::kCompany);
    }
    void expectAlive() const {
        if (DbAzienda.IsOpen()) {
            EXPECT_EQ(fields()[1], NomeDatabase);
        }
    }
    support::Lines shown() const { return finito() ? support::Lines{} : support::Lines{NomeAzienda}; }
    support::Lines held() const { return support::Lines(shown().size(), aziendaDelTerminale()); }
};

// The company found is tried once: where that fails, too, the process ends. A search that fails finds nothing.
TEST(RipiegoRifiuto, OfACompanyWithoutItsDatabaseTakesUpTheFirstOneOrEndsTheProcess) {
    const std::string impossibile = "told Non è possibile caricare il DataBase; rows ";
    const std::string finita = "; list right; fields changed to ended, IT";
    const std::string aperta = "; list right; fields changed to ended, VaBoDatiAurora, IT";
    const std::string una = "of company 1, language none, program none";
    const std::string nessuna = "of company 0, language none, program none";
    replay(support::Operation<Ripiego>{.tables = {"vabodatiazienda.dbo.link_programmaTerminale", "sources"},
                                       .reach = [](Ripiego& ripiego) { ripiego.prepara(); },
                                       .act = [](Ripiego& ripiego) { ripiego.apri(2); },
                                       .once = inTurn({{9, support::kStored},
                                                       {4, impossibile + "before" + finita},
                                                       {13, support::kStored},
                                                       {1, impossibile + nessuna + finita},
                                                       {1, support::kStored},
                                                       {1, impossibile + una + finita},
                                                       {2, support::kStored},
                                                       {2, impossibile + una + finita},
                                                       {1, support::kStored},
                                                       {1, "silent; rows done; list right; fields changed to IT"},
                                                       {2, impossibile + una + aperta},
                                                       {2, support::kStored}}),
                                       .fromThere = inTurn({{2, impossibile + "before" + finita},
                                                            {1, impossibile + nessuna + finita},
                                                            {23, impossibile + "before" + finita},
                                                            {1, impossibile + nessuna + finita},
                                                            {8, impossibile + una + finita},
                                                            {2, impossibile + una + aperta},
                                                            {2, support::kStored}})});
}

} // namespace
} // namespace vabo
