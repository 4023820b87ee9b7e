// The Load of the login, which takes up the company once more, with each of its requests to the server refused.

#include "session/ProgrammaRifiutato.h"

namespace vabo {
namespace {

using support::inTurn;

/// With a branch's file that is to be found on the disk.
class Accesso : public Programma {
public:
    Accesso() {
        workstation.putFile("C:\\Dati\\Sede.dat", "x");
        for (const char* database : {support::kCompany, support::kOtherCompany}) {
            workstation.run(database, "update DirectorySede set Directoryfile = null, NomeFile = 'Sede.dat'");
        }
    }
    support::Lines fields() const {
        support::Lines tutti = Programma::fields();
        const bool aperto = gui.forms().isLoaded("About");
        tutti.push_back(aperto ? gui.find("About", "Dir1").property("Path").toString().toStdString() : "no login");
        return tutti;
    }
    static std::string half(const support::Stored& tutto) {
        return Programma::half(tutto) + ", file " + tutto.at("DirectorySede")[0][1] + " or " +
               tutto.at("VaBoDatiPonte.dbo.DirectorySede")[0][1];
    }
};

// The two hidden lists get no folder where it can't be stored. Without the company the form of the data sources comes,
// which takes the company up itself.
TEST(AccessoRifiuto, OfItsLoadLeadsToTheLoginOrToTheFirstCompanyOrEndsTheProcess) {
    const std::string ripiegata = "silent; rows of company 1, language IT, program none, file C:\\Dati\\Sede.dat or "
                                  "NULL; list right; fields changed to About, VaBoDatiAurora, IT, C:\\Dati\\";
    const std::string presa = "silent; rows of company 2, language IT, program none, file NULL or ";
    const std::string senzaLingua = "silent; rows of company 2, language none, program none, file NULL or "
                                    "C:\\Dati\\Sede.dat; list right; fields done";
    const std::string impossibile = "told Non è possibile caricare il DataBase; rows ";
    const std::string senzaFile = ", program none, file NULL or NULL; list right; fields changed to ended";
    replay(support::Operation<Accesso>{
        .tables = {"vabodatiazienda.dbo.link_programmaTerminale", "VaBoDatiTemp.dbo.LinguaClient", "DirectorySede",
                   "VaBoDatiPonte.dbo.DirectorySede", "sources", "options"},
        .reach = [](Accesso& accesso) { accesso.prepara(); },
        .act = [](Accesso& accesso) { accesso.mostra("About"); },
        .once = inTurn({{3, "told it; rows before; list right; fields changed to ended, "},
                        {1, ripiegata},
                        {1, support::kStored},
                        {1, ripiegata},
                        {1, support::kStored},
                        {1, ripiegata},
                        {1, senzaLingua},
                        {1, presa + "C:\\Dati\\Sede.dat; list right; fields done"},
                        {4, senzaLingua},
                        {1, support::kStored},
                        {2, ripiegata},
                        {2, support::kStored},
                        {2, ripiegata},
                        {2, support::kStored},
                        {1, presa + "NULL; list right; fields changed to FormRegistraAziendeNeiDns, VaBoDatiPonte, IT"},
                        {2, support::kStored},
                        {3, presa + "NULL; list right; fields changed to About, VaBoDatiPonte, IT, "},
                        {1, "silent; rows done; list right; fields changed to Avvio_Azienda, VaBoDatiPonte, IT"}}),
        .fromThere = inTurn({{3, "told it; rows before; list right; fields changed to ended, "},
                             {2, impossibile + "before; list right; fields changed to ended, IT, "},
                             {1, impossibile + "of company 0, language none" + senzaFile + ", IT, "},
                             {5, impossibile + "before; list right; fields changed to ended, IT, "},
                             {3, impossibile + "of company 2, language none" + senzaFile + ", IT, "},
                             {5, impossibile + "of company 2, language IT" + senzaFile + ", IT, "},
                             {2, impossibile + "of company 2, language IT" + senzaFile + ", VaBoDatiPonte, IT, "},
                             {8, impossibile + "of company 2, language IT" + senzaFile + ", VaBoDatiPonte, IT"},
                             {1, impossibile + "done; list right; fields changed to ended, VaBoDatiPonte, IT"}})});
}

} // namespace
} // namespace vabo
